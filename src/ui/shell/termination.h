#pragma once

#include <QObject>

#include <functional>
#include <vector>

namespace shell {

/// Tells of ends that the program did not choose, one at a time in a process. On systems without
/// signals it does nothing.
class Termination : public QObject {
  public:
    /// `requested` is called on the user-interface thread when the system asks the program to end
    /// (SIGTERM, SIGINT, SIGHUP, SIGQUIT; not one that was ignored when the program was started),
    /// with the exit status that tells of the signal. `dropped` is called when a library ends the
    /// process under the program, as happens when the display is gone.
    Termination(std::function<void(int)> requested, std::function<void()> dropped);
    ~Termination() override;

  private:
    std::vector<int> taken_; // signals
};

/// Lets a write to a pipe that nobody reads any more, or beyond the size that a file may have, fail
/// instead of ending the program.
void ignore_failing_writes();

} // namespace shell
