#pragma once

#include "shell/session.h"

#include <QApplication>

#include <exception>
#include <functional>

namespace shell {

/// The Qt application, and the last stop of every error: it saves what is unsaved, says what
/// happened and ends the program.
class Application : public QApplication {
  public:
    /// `end` ends the program with the exit status it is given.
    Application(int& argc, char** argv, Session& session, std::function<void(int)> end);

    bool notify(QObject* receiver, QEvent* event) override;

    /// Writes the recovery copy, shows the error and ends the program with status 1. On standard
    /// error the text appears as well until the event loop runs and wherever nobody looks.
    void fail(const std::exception& error);

    /// Ends the program on the system's request, after the recovery copy is written.
    void terminate(int exit_status);

    /// Writes the recovery copy, if there is anything to write, and tells of it on standard error.
    void save_unsaved();

    void event_loop_begins() { in_event_loop_ = true; }

  private:
    Session& session_;
    std::function<void(int)> end_;
    bool in_event_loop_ = false;
};

} // namespace shell
