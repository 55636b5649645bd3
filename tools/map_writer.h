#pragma once

#include "map_view.h"

#include <filesystem>

namespace sample {

/// Writes map1.bmp (relief, 24 bits), map2.bmp (political, 8 bits) and idmap.bmp (24 bits) into the
/// folder: three pictures of the same pixels. Throws std::ios_base::failure.
void write_maps(const MapView& view, const std::filesystem::path& folder);

} // namespace sample
