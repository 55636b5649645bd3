#pragma once

#include "map/bitmap_file.h"

#include <cstddef>

/// Colours for values. They differ in lightness as much as in hue, so that people who see colours
/// differently tell them apart, too.
namespace map {

/// Returns the colour of the code with the index, the same every time. The first twelve are well
/// apart from each other, and every one is from its neighbours.
Pixel code_colour(std::size_t index);

/// Returns the colour of a place on a scale: light for 0, dark for 1.
Pixel scale_colour(double place);

} // namespace map
