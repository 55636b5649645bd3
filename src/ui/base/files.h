#pragma once

#include <string>
#include <string_view>

namespace base {

/// Returns the file's bytes, or its first ones where the caller wants no more. Throws file not
/// found, path not found, permission denied or path/file access error with the file in its place.
std::string read_file(std::string_view path, std::size_t at_most = std::string::npos);

/// Gives the file new bytes in one step: after any failure the old file is whole. Throws disk full,
/// path not found, permission denied or path/file access error with the file in its place.
void replace_file(std::string_view path, std::string_view bytes);

/// Returns the path as the user knows it, for the place of an error.
std::string shown_path(std::string_view path);

} // namespace base
