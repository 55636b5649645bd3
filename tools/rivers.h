#pragma once

#include "terrain.h"

namespace sample {

/// Adds rivers that run from the highlands to the sea: narrow strips of ground of their own.
/// Land that they cut off joins them where it has fewer than `fewest_cells`.
void add_rivers(Terrain& terrain, std::size_t fewest_cells);

} // namespace sample
