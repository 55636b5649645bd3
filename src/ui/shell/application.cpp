#include "shell/application.h"

#include "base/files.h"
#include "base/messages.h"
#include "base/shown_text.h"
#include "shell/icon.h"

#include <iostream>
#include <utility>

namespace shell {

Application::Application(int& argc, char** argv, Session& session, std::function<void(int)> end)
    : QApplication(argc, argv),
      session_(session),
      copies_(session),
      copy_timer_(copies_, session_),
      end_(std::move(end)) {
    setApplicationName(QString::fromLatin1(application_name));
    setWindowIcon(program_icon());
    setApplicationVersion(QStringLiteral(PROVINCE_EDITOR_VERSION));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        const bool taken = QApplication::notify(receiver, event);
        if (!session_.unattended)
            copy_timer_.look();
        after_event();
        return taken;
    } catch (const std::exception& error) {
        end_with_error(error);
        return true;
    }
}

void Application::end_with_error(const std::exception& error) {
    std::string text = session_.language.text(error);
    const std::string kept = recover_all();
    text += "\n\n" + session_.language.text(Text::error_program_ends) + " " +
            (kept.empty() ? session_.language.text(Text::error_nothing_unsaved) : kept);
    const bool seen = platformName() != QLatin1String("offscreen") && !session_.unattended;
    if (!in_event_loop_ || !seen)
        std::cerr << base::message_text(text).toStdString() << std::endl;
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
    if (const std::string notice = recover_all(); !notice.empty())
        std::cerr << base::message_text(notice).toStdString() << std::endl;
    copies_.let_go();
}

std::string Application::recover_all() noexcept {
    try {
        keep_typed_text();
    } catch (const std::exception&) {
        // What the table holds is still worth keeping.
    }
    if (session_.unattended)
        return {};
    try {
        copies_.update();
        if (copies_.own().empty())
            return {};
        return session_.language.text(Text::recovery_copy_written,
                                      {base::shown_path(copies_.own())});
    } catch (const std::exception& error) {
        const auto& language = session_.language;
        const std::string text = language.text(Text::recovery_copy_failed, {language.text(error)});
        if (copies_.own().empty())
            return text;
        return text + "\n" +
               language.text(Text::recovery_copy_older, {base::shown_path(copies_.own())});
    }
}

} // namespace shell
