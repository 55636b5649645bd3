#pragma once

#include <filesystem>

namespace sample {

/// Writes the terrain drawings into the folder: plains, forest, mountain, desert, marsh and ice,
/// eight variants each. Throws std::ios_base::failure.
void write_terrain_art(const std::filesystem::path& folder);

} // namespace sample
