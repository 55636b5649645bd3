#pragma once

#include "shell/session.h"

#include <string>
#include <string_view>
#include <vector>

namespace shell {

/// Keeps the bytes that the file with that stored path has now, and removes those of its backups
/// that need not stay. Does nothing where there is no file yet. Throws where the file cannot be
/// read or neither the program's folder nor the user's own can be written.
void back_up(const Session& session, std::string_view path);

/// Returns the stored paths of all backups.
std::vector<std::string> backups(const Session& session);

} // namespace shell
