#pragma once

#include <filesystem>

namespace sample {

/// Writes the terrain drawings into the folder: plains, forest, mountain, desert, marsh and ice,
/// eight variants each. Throws std::runtime_error.
void write_terrain_art(const std::filesystem::path& folder);

} // namespace sample
