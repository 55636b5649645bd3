#pragma once

/// Texts of the dialogs that no record of the language files has, in UTF-8.
namespace gfx::texts {

inline constexpr const char* browse = "Choose the file: %1"; // %1: the field beside the button
inline constexpr const char* descriptors = "Sprite descriptor files";
inline constexpr const char* add_set = "Add the selected file: %1"; // %1: heading of the list
inline constexpr const char* take_set_out = "Take the selected set out: %1";
inline constexpr const char* drive = "Drive";
inline constexpr const char* folders = "Folders";
inline constexpr const char* folders_tip = "Enter or a double-click opens the folder";
inline constexpr const char* files = "Files";
inline constexpr const char* file_name = "File &name";
inline constexpr const char* file_name_tip = "A name in the open folder, or a full path";

} // namespace gfx::texts
