#pragma once

#include "grid.h"

#include <vector>

namespace sample {

enum class Ground : std::uint8_t { sea, land, river };

/// The shape of the world, before it has provinces.
struct Terrain {
    explicit Terrain(Size cells);

    /// Returns the cell's middle in units: a map of any size covers as many square units as the
    /// chart, so whatever is measured in them keeps its share of the map.
    Point in_units(int cell) const;
    Point on_chart(int cell) const;

    double unit; // side of a cell in units
    Grid<Ground> ground;
    Grid<float> height;                   // land 0 to 1, sea below 0
    Grid<float> moisture;                 // 0 to 1
    std::vector<std::vector<int>> rivers; // cells of each river
};

/// Returns the world's terrain on a grid of that size.
Terrain make_terrain(Size cells);

/// Returns how warm it is at the latitude (degrees) and height (0 to 1): 0 to 1.
double warmth(double latitude, double height);

} // namespace sample
