#pragma once

#include "shell/session.h"

#include <string>

namespace shell {

/// Writes changes that no save has written to recovered.csv in the program's folder, or in the
/// system's folder for temporary files when that one cannot be written. An older copy that nobody
/// took away is kept as recovered-old.csv. Returns what the user is told of it, empty where there
/// was nothing to write. Throws when neither folder can be written.
std::string write_recovery_copy(Session& session);

/// Does the same, but never throws: the returned text tells of a failure, too.
std::string recover(Session& session);

} // namespace shell
