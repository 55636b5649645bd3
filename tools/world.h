#pragma once

#include "terrain.h"

#include <span>
#include <vector>

namespace sample {

/// What the world itself says of a province; its values in the province file follow from it.
struct Province {
    Ground ground = Ground::sea;
    std::size_t region = 0; // index in the table of regions
    int area = -1;          // index in the region's list of areas, or in the table of sea areas
    int culture = 0;        // index in the region's list of cultures
    Point centre;           // on the chart
    int cells = 0;
    double height = 0; // means over its cells
    double moisture = 0;
    std::vector<int> neighbours; // identifiers, ascending
};

/// The sample world: terrain, and the province that every cell belongs to.
struct World {
    Terrain terrain;
    Grid<std::uint16_t> province;
    std::vector<Province> provinces; // by identifier; 0 is none
};

/// Returns the world on a grid of that size, with provinces 1 to 2018: land by continent, region
/// and area, then the rivers, then the seas. Throws std::invalid_argument for a grid that is too
/// small to hold them all.
World make_world(Size cells);

} // namespace sample
