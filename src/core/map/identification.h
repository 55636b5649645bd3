#pragma once

#include "data/run_time_error.h"

#include <cstdint>

namespace map {

/// A colour with red in bits 16-23, green in bits 8-15 and blue in bits 0-7; bits 24-31 are free.
using Colour = std::uint32_t;

/// Returns the identifier, 0 to 4095, that the ID map's colour stands for.
int province_of(Colour colour);

/// Returns the error for an identifier above 2018, which no province has.
data::RunTimeError no_such_province(int identifier);

/// Returns the point of the ID map (pixels) and its colour as the place of an error.
data::Phrase place_on_id_map(int x, int y, Colour colour);

} // namespace map
