#pragma once

#include "shell/application.h"

#include <vector>

namespace support {

/// What the application needs before it is made.
struct ProgramState {
    shell::Session session;
    std::vector<int> ends; // the exit statuses with which the program would have ended
};

/// The application of all tests. Errors reach the test that causes them, unless it wants the
/// program's own treatment of them.
class TestApplication : public ProgramState, public shell::Application {
  public:
    TestApplication(int& argc, char** argv)
        : Application(argc, argv, session, [this](int status) { ends.push_back(status); }) {
        event_loop_begins();
    }

    static TestApplication& instance() { return *static_cast<TestApplication*>(qApp); }

    bool notify(QObject* receiver, QEvent* event) override {
        if (treats_errors)
            return Application::notify(receiver, event);
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): passes over the treatment of errors
        return QApplication::notify(receiver, event);
    }

    bool treats_errors = false;
};

} // namespace support
