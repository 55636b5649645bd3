#pragma once

#include <string>

namespace shell {

/// Returns the stored path of a folder of the user's own, where the system keeps the data of
/// programs; it is made where it is missing. Throws permission denied where others could write into
/// it, and path/file access error where it cannot be made.
std::string own_folder();

} // namespace shell
