#include "base/stored_path.h"
#include "shell/application.h"
#include "shell/batch_run.h"
#include "shell/command_line.h"
#include "shell/etat.h"
#include "shell/mdi_form1.h"
#include "shell/program_folder.h"
#include "shell/qt_texts.h"
#include "shell/read_report.h"
#include "shell/start_up.h"
#include "shell/termination.h"

#include <QScopeGuard>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace {

constexpr int wrong_use = 2;

[[noreturn]] void end_program(int status) {
    // Windows may still be open in nested event loops: nothing of them is to run any more.
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
    std::_Exit(status);
}

bool has_display() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
           !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

void obey(const shell::CommandLine& line, shell::Session& session, shell::MDIForm1& frame) {
    if (line.csv)
        shell::tell_what_was_read(*line.csv, frame.open_province_file(*line.csv));
    if (line.maps) {
        session.maps = *line.maps;
        frame.open_maps();
    }
    if (line.select)
        frame.select(*line.select);
    if (!line.assignments.empty())
        frame.assign(line.assignments);
}

void save_picture(const shell::Screenshot& picture, shell::MDIForm1& frame) {
    if (picture.page)
        frame.show_page(*picture.page);
    if (picture.mode)
        frame.enter_mode(*picture.mode);
    if (picture.colour)
        frame.colour_by(*picture.colour);
    if (picture.level)
        frame.zoom_to(*picture.level);
    QApplication::processEvents();
    if (picture.size && frame.size() != *picture.size)
        throw std::runtime_error("The frame takes at least " + std::to_string(frame.width()) + "x" +
                                 std::to_string(frame.height()) + " pixels");
    if (!frame.grab().save(picture.file, "PNG"))
        throw data::RunTimeError(data::ErrorNumber::path_file_access,
                                 data::Phrase(data::Text::reason_picture))
            .within(base::path_bytes(picture.file));
}

int run_program(shell::Application& application, shell::Session& session,
                const shell::CommandLine& line) {
    session.program_folder = shell::program_folder(line.folder);
    session.unattended = line.screenshot.has_value();

    const shell::Run run = shell::start_up(session);
    shell::install_qt_texts(session.language);
    shell::MDIForm1 frame(session, application.copies(), run);
    application.keep_typed_text = [&frame] { frame.keep_typed_text(); };
    application.copies().set_typed_texts([&frame] { return frame.typed_texts(); });
    application.after_event = [&frame] { frame.look(); };
    // Events still come while the frame is being destroyed.
    const auto frame_ends = qScopeGuard([&application] {
        application.keep_typed_text = [] {};
        application.copies().set_typed_texts({});
        application.after_event = [] {};
    });
    QObject::connect(&application.copy_timer(), &shell::CopyTimer::failed, &frame,
                     &shell::MDIForm1::tell);
    const shell::Termination termination([&](int status) { application.terminate(status); },
                                         [&] { application.save_unsaved(); });
    if (line.screenshot) {
        if (line.screenshot->size)
            frame.resize(*line.screenshot->size);
        frame.show(); // the map moves to what is selected in the view that is painted
        obey(line, session, frame);
        save_picture(*line.screenshot, frame);
        return EXIT_SUCCESS;
    }
    frame.show_as_left();
    obey(line, session, frame);
    application.event_loop_begins();
    return QApplication::exec();
}

int print_and_end(const shell::PrintAndEnd& text) {
    (text.is_error ? std::cerr : std::cout) << text.text.toStdString();
    return text.is_error ? wrong_use : EXIT_SUCCESS;
}

/// Does what the command line asks for without a window, and returns the exit status; nothing when
/// it asks for a window.
std::optional<int> work_without_window(int& argc, char** argv) {
    if (!shell::may_need_no_window({argv, static_cast<std::size_t>(argc)}))
        return {};
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QString::fromLatin1(shell::application_name));
    const auto asked = shell::read_command_line(QCoreApplication::arguments());
    if (const auto* text = std::get_if<shell::PrintAndEnd>(&asked))
        return print_and_end(*text);
    const auto& line = std::get<shell::CommandLine>(asked);
    if (line.needs_window())
        return {};
    return shell::batch_run(line);
}

int start_program(int& argc, char** argv) {
    shell::ignore_failing_writes();
    if (const auto status = work_without_window(argc, argv))
        return *status;
    const bool is_seen = has_display();
    if (!is_seen)
        qputenv("QT_QPA_PLATFORM", "offscreen");

    shell::Session session;
    shell::Application application(argc, argv, session, end_program);
    const auto asked = shell::read_command_line(QApplication::arguments());
    if (const auto* text = std::get_if<shell::PrintAndEnd>(&asked))
        return print_and_end(*text);
    const auto& line = std::get<shell::CommandLine>(asked);
    if (!is_seen && !line.screenshot) {
        std::cerr << "There is no display to open a window on. --screenshot FILE paints the window "
                     "into a picture instead.\n";
        return EXIT_FAILURE;
    }
    try {
        return run_program(application, session, line);
    } catch (const std::exception& error) {
        application.end_with_error(error);
        return EXIT_FAILURE;
    }
}

} // namespace

int main(int argc, char** argv) {
    try {
        return start_program(argc, argv);
    } catch (const std::exception& error) {
        std::fputs(error.what(), stderr);
        return EXIT_FAILURE;
    }
}
