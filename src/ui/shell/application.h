#pragma once

#include "shell/copy_timer.h"
#include "shell/recovery_copies.h"
#include "shell/session.h"

#include <QApplication>

#include <exception>
#include <functional>
#include <string>

namespace shell {

/// The title of the windows; folders of the user's own are named so, too.
inline constexpr const char* application_name = "Province Editor";

/// The Qt application, and the last stop of every error: it saves what is unsaved, says what
/// happened and ends the program.
class Application : public QApplication {
  public:
    /// `end` ends the program with the exit status it is given.
    Application(int& argc, char** argv, Session& session, std::function<void(int)> end);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Writes the recovery copy, shows the error and ends the program with status 1. On standard
    /// error the text appears as well until the event loop runs and wherever nobody looks.
    void end_with_error(const std::exception& error);

    /// Ends the program on the system's request, after the recovery copy is written.
    void terminate(int exit_status);

    /// Writes the recovery copy, if there is anything to write, and tells of it on standard error.
    void save_unsaved();

    void event_loop_begins() { in_event_loop_ = true; }

    RecoveryCopies& copies() { return copies_; }
    CopyTimer& copy_timer() { return copy_timer_; }
    /// Runs after every event.
    std::function<void()> after_event = [] {};

    /// Takes into the table what was typed and not yet entered; runs before every recovery copy.
    std::function<void()> keep_typed_text = [] {};

  private:
    /// Returns what the user is told of the copy, empty without one. Never throws.
    std::string recover_all() noexcept;

    Session& session_;
    RecoveryCopies copies_;
    CopyTimer copy_timer_;
    std::function<void(int)> end_;
    bool in_event_loop_ = false;
};

} // namespace shell
