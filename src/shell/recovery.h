#pragma once

#include "shell/session.h"

#include <optional>
#include <string>

namespace shell {

/// Writes changes that no save has written to recovered.csv in the program's folder, or in the
/// system's folder for temporary files when that one cannot be written. Returns the file's path as
/// the user knows it, nothing where there was nothing to write. Throws when neither can be written.
/// An older copy that nobody took away is kept as recovered-old.csv.
std::optional<std::string> write_recovery_copy(Session& session);

/// Writes the copy likewise and returns what the user is told of it, empty where there was nothing
/// to write. Never throws.
std::string recover(Session& session);

} // namespace shell
