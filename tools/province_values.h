#pragma once

#include "data/province_table.h"
#include "positions.h"
#include "world.h"

#include <span>

namespace sample {

/// Returns the table of all provinces: its values go with the world, and with each other.
data::ProvinceTable make_values(const World& world, std::span<const Positions> positions);

} // namespace sample
