#pragma once

#include "map_view.h"

#include <vector>

namespace sample {

/// A pixel of the map; negative coordinates are none.
struct Pixel {
    int x = -1;
    int y = -1;
};

/// Where the game draws what a province has. Every pixel shows the province itself.
struct Positions {
    Pixel city;
    Pixel army;
    Pixel manufactory;
    Pixel port;
    int sea = 0; // sea province beside the port; 0 without a port
    std::vector<Pixel> drawings;
};

/// Returns the positions of every province, by identifier: all of them for land, the army's only
/// for seas and rivers. Throws std::invalid_argument when a province has no pixel on the map.
std::vector<Positions> make_positions(const MapView& view);

} // namespace sample
