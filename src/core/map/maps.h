#pragma once

#include <cstdint>
#include <string>

namespace map {

/// What the map files dialog sets: the three images, and where they lie in the game's coordinates.
struct Maps {
    std::string map_1_path; // stored paths
    std::string map_2_path; // empty: there is no map 2
    std::string id_map_path;
    double x_offset = 0; // pixels, added to a pointer's X before it is stored
    std::int16_t y_offset = 0;
};

} // namespace map
