#pragma once

#include "world.h"

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

/// Returns the positions of every province, by identifier, on maps of that many pixels: all of them
/// for land, the army's only for seas and rivers.
std::vector<Positions> make_positions(const World& world, Size pixels);

} // namespace sample
