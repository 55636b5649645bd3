#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Paths are stored in the drive form "c:\folder\file"; here they become the system's own and back.
/// Every path has a stored form: a character outside the code page stands in it as the substitute
/// character and four hexadecimal digits. Such a path works wherever a path does, but config.txt
/// takes none of them.
namespace base {

/// Returns the path's bytes, characters outside the code page spelled out.
std::string path_bytes(const QString& path);

/// Returns the text that path_bytes() made the bytes from.
QString path_text(std::string_view bytes);

/// Returns the system's path for a stored or native one. Where the exact name is absent, a name
/// that differs in letter case only is found, folder by folder.
QString native_path(std::string_view path);

/// Returns the stored form of the path, made absolute. A stored path is returned as it is.
std::string stored_path(const QString& path);

/// Returns whether config.txt can hold the text: all its characters are in the code page and none
/// is a quote or a line end.
bool is_storable_text(const QString& text);

/// Returns whether a stored path can hold the file's or folder's name: it is a storable text
/// without the separator.
bool is_storable(const QString& name);

/// Returns whether config.txt can hold the path, stored or native.
bool is_storable_path(const QString& path);

/// Returns whether the text is a path from the root on, stored or native.
bool is_full_path(const QString& text);

/// Returns the stored path of a name in a stored folder.
std::string in_folder(std::string_view folder, std::string_view name);

/// Returns the folder part of a stored path with its last separator; empty without a separator.
std::string folder_of(std::string_view path);

} // namespace base
