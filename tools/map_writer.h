#pragma once

#include "world.h"

#include <filesystem>

namespace sample {

/// Writes map1.bmp (relief, 24 bits), map2.bmp (political, 8 bits) and idmap.bmp (24 bits) into the
/// folder: the world in three pictures of that many pixels. Throws std::runtime_error.
void write_maps(const World& world, Size pixels, const std::filesystem::path& folder);

} // namespace sample
