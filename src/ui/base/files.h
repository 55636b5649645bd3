#pragma once

#include <string>
#include <string_view>

namespace base {

/// Returns the file's bytes, or its first ones where the caller wants no more. Throws file not
/// found, path not found, permission denied or path/file access error with the file in its place,
/// also when the file gives fewer bytes than it has.
std::string read_file(std::string_view path, std::size_t at_most = std::string::npos);

/// When a written file counts as written: once the disk has it, or once the system has it.
enum class Written { on_disk, by_system };

/// Gives the file new bytes in one step: after any failure the old file is whole. A link is
/// followed; permissions and, where the system lets it, owner and group stay. Throws disk full,
/// path not found, permission denied or path/file access error with the file in its place.
void replace_file(std::string_view path, std::string_view bytes,
                  Written written = Written::on_disk);

/// Makes a file that was not there, with all its bytes in one step, and returns true; false where
/// something of that name is there. Nobody else may read it. Throws what replace_file throws.
bool create_file(std::string_view path, std::string_view bytes);

/// Returns the path as the user knows it, for the place of an error; message_text() shows it whole.
std::string shown_path(std::string_view path);

} // namespace base
