#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Paths are stored in the drive form "c:\folder\file"; here they become the system's own and back.
namespace base {

/// Returns the system's path for a stored or native one. Where the exact name is absent, a name
/// that differs in letter case only is found, folder by folder.
QString native_path(std::string_view path);

/// Returns the stored form of the path, made absolute. A stored path is returned as it is.
std::string stored_path(const QString& path);

/// Returns whether a stored path can hold the file's or folder's name: all its characters are in
/// the code page and none is the separator.
bool is_storable(const QString& name);

/// Returns the stored path of a name in a stored folder.
std::string in_folder(std::string_view folder, std::string_view name);

/// Returns the folder part of a stored path with its last separator; empty without a separator.
std::string folder_of(std::string_view path);

} // namespace base
