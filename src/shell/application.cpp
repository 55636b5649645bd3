#include "shell/application.h"

#include "shell/icon.h"
#include "shell/messages.h"
#include "shell/qt_text.h"
#include "shell/recovery.h"

#include <QMessageBox>

#include <iostream>
#include <string>
#include <utility>

namespace shell {

namespace {

/// Returns what became of the unsaved changes, empty where there were none.
std::string recover(Session& session) {
    try {
        const auto path = write_recovery_copy(session);
        return path ? "\nThe unsaved changes are in " + *path : std::string();
    } catch (const std::exception& error) {
        return std::string("\nThe unsaved changes could not be written: ") + error.what();
    }
}

} // namespace

Application::Application(int& argc, char** argv, Session& session, std::function<void(int)> end)
    : QApplication(argc, argv), session_(session), end_(std::move(end)) {
    setApplicationName(QStringLiteral("Province Editor"));
    setApplicationDisplayName(applicationName());
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
    const std::string text = error.what() + recover(session_);
    const bool seen = platformName() != QLatin1String("offscreen") && !session_.unattended;
    if (!in_event_loop_ || !seen)
        std::cerr << to_qstring(text).toStdString() << std::endl;
    if (!session_.unattended)
        show_error_box(activeWindow(), text);
    end_(EXIT_FAILURE);
}

void Application::terminate(int exit_status) {
    const std::string text = recover(session_);
    if (!text.empty())
        std::cerr << to_qstring(text.substr(1)).toStdString() << std::endl;
    end_(exit_status);
}

} // namespace shell
