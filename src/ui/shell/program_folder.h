#pragma once

#include <optional>
#include <string>

namespace shell {

/// Returns the stored path of the folder of config.txt, the language files and what else the
/// program keeps: the one that was named, else the program's own where it can be written and no
/// package installed the program. Else it is a folder of the user's own, which is given the
/// language files that it lacks; that one throws what own_folder() throws.
std::string program_folder(const std::optional<std::string>& named);

} // namespace shell
