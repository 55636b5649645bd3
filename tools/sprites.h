#pragma once

#include "gfx/graphics_file_list.h"

#include <filesystem>
#include <string>
#include <vector>

namespace sample {

/// Writes the sprite descriptors into the folder and their bitmaps into its subfolder "bmp".
/// Returns the descriptors that fill the editor's sets, with file names for paths; one more, with
/// two sprites, is left for the user to add. Throws std::runtime_error.
std::vector<gfx::GraphicsFile> write_sprite_sets(const std::filesystem::path& folder);

} // namespace sample
