#pragma once

#include <QObject>

#include <functional>

namespace shell {

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into calls on the user-interface
/// thread, where files can be written. Does nothing on systems without such signals.
class Termination : public QObject {
  public:
    /// `requested` is called with the exit status that tells of the signal.
    explicit Termination(std::function<void(int)> requested);
};

} // namespace shell
