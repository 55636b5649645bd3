#include "shell/termination.h"

#include <utility>

#ifdef Q_OS_UNIX

#include <QCoreApplication>
#include <QSemaphore>
#include <QSocketNotifier>
#include <QThread>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace shell {

namespace {

constexpr int signal_status = 128; // what a shell adds to a signal's number
constexpr std::array ends_of_the_program = {SIGTERM, SIGINT, SIGHUP, SIGQUIT};

// What a signal handler and an exit handler can reach: the writing end of a pipe, and a function.
int pipe_end = -1;
std::function<void()>& at_exit() {
    static std::function<void()> function;
    return function;
}

extern "C" void forward_signal(int number) {
    const int error_before = errno; // belongs to what the signal interrupted
    const auto byte = static_cast<unsigned char>(number);
    // Nothing is left to do where even this fails.
    [[maybe_unused]] const auto written = ::write(pipe_end, &byte, 1);
    errno = error_before;
}

QtMessageHandler handler_before = nullptr;

/// When its Wayland compositor is gone, Qt says so and leaves without calling any exit handler.
/// What it says is the last moment to act; another thread may say it.
void listen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    handler_before(type, context, message);
    const auto* application = QCoreApplication::instance();
    if (!message.startsWith(QLatin1String("The Wayland connection")) || !at_exit() || !application)
        return;
    if (application->thread() == QThread::currentThread()) {
        at_exit()();
        return;
    }
    constexpr int most_milliseconds = 5000; // the other thread may wait for this one
    static QSemaphore done;
    QMetaObject::invokeMethod(QCoreApplication::instance(), [] {
        at_exit()();
        done.release();
    });
    done.tryAcquire(1, most_milliseconds);
}

} // namespace

Termination::Termination(std::function<void(int)> requested, std::function<void()> dropped) {
    at_exit() = std::move(dropped); // made before the handler is registered, so it outlives it
    std::atexit([] {
        if (at_exit())
            at_exit()();
    });
    handler_before = qInstallMessageHandler(listen);
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    pipe_end = ends[1];
    auto* notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this,
            [end = ends[0], requested = std::move(requested)] {
                unsigned char number = 0;
                if (::read(end, &number, 1) == 1)
                    requested(signal_status + number);
            });
    for (const int number : ends_of_the_program) {
        // Who started the program may want it to outlive a signal, as nohup does.
        struct sigaction before = {};
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler == SIG_IGN)
            continue;
        std::signal(number, forward_signal);
        taken_.push_back(number);
    }
}

Termination::~Termination() {
    for (const int number : taken_)
        std::signal(number, SIG_DFL); // nobody reads the pipe any more
    qInstallMessageHandler(handler_before);
    at_exit() = nullptr;
}

void ignore_failing_writes() {
    for (const int number : {SIGPIPE, SIGXFSZ})
        std::signal(number, SIG_IGN);
}

} // namespace shell

#else

namespace shell {
Termination::Termination(std::function<void(int)>, std::function<void()>) {}
Termination::~Termination() = default;
void ignore_failing_writes() {}
} // namespace shell

#endif
