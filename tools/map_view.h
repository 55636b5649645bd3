#pragma once

#include "world.h"

#include <vector>

namespace sample {

/// The world as the pixels of a map show it. On a map that is larger than the world's grid, the
/// borders between the cells are bent, so that they stay ragged at every size.
class MapView {
  public:
    MapView(const World& world, Size pixels);

    const World& world() const { return world_; }
    Size size() const { return pixels_; }

    /// Returns the province at the pixel.
    int province(int x, int y) const;

    /// Stores the ground's height and moisture at the pixels of a row.
    void read_row(int y, std::vector<double>& heights, std::vector<double>& moistures) const;

    /// Returns the cell's distance to the nearest cell of another province, in cells.
    double to_border(int cell) const { return to_border_[cell]; }

    /// Returns the cell that the middle of the pixel lies in, and the reverse.
    int cell_at(int x, int y) const;
    Point pixel_at(int cell) const;

    /// Returns the width of a pixel in units.
    double unit() const { return world_.terrain.unit * cells_per_pixel_x_; }

  private:
    bool is_one_to_one() const { return pixels_.width == world_.province.size.width; }
    int most_of(double column, double row) const;
    void read_smooth_row(const Grid<float>& grid, int y, std::vector<double>& values) const;

    const World& world_;
    Size pixels_;
    double cells_per_pixel_x_;
    double cells_per_pixel_y_;
    Grid<float> to_border_;
};

/// Returns the grid on which the world of a map of that size is made.
Size world_size(Size pixels);

} // namespace sample
