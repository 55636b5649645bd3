#pragma once

#include "map/bitmap_file.h"

#include <functional>
#include <span>

namespace map {

/// Fills the pixels with the ID map's row y at first_x, first_x + step, and so on; no_pixel where
/// it cannot be read.
using ReadRow = std::function<void(int y, int first_x, int step, std::span<Pixel> pixels)>;

} // namespace map
