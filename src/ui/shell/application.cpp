#include "shell/application.h"

#include "base/messages.h"
#include "base/qt_text.h"
#include "shell/icon.h"
#include "shell/recovery.h"

#include <iostream>
#include <string>
#include <utility>

namespace shell {

Application::Application(int& argc, char** argv, Session& session, std::function<void(int)> end)
    : QApplication(argc, argv), session_(session), end_(std::move(end)) {
    setApplicationName(QStringLiteral("Province Editor"));
    setWindowIcon(program_icon());
    setApplicationVersion(QStringLiteral(PROVINCE_EDITOR_VERSION));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        fail(error);
        return true;
    }
}

void Application::fail(const std::exception& error) {
    std::string text = error.what();
    if (const std::string notice = recover(session_); !notice.empty())
        text += "\n" + notice;
    const bool seen = platformName() != QLatin1String("offscreen") && !session_.unattended;
    if (!in_event_loop_ || !seen)
        std::cerr << base::to_utf8(text) << std::endl;
    if (!session_.unattended)
        base::show_error_box(activeWindow(), text);
    save_unsaved(); // while the box was open, room may have been made for it
    end_(EXIT_FAILURE);
}

void Application::terminate(int exit_status) {
    save_unsaved();
    end_(exit_status);
}

void Application::save_unsaved() {
    if (const std::string notice = recover(session_); !notice.empty())
        std::cerr << base::to_utf8(notice) << std::endl;
}

} // namespace shell
