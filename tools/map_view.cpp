#include "map_view.h"

#include "growth.h"
#include "noise.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sample {

namespace {

constexpr double most_cells = 2400.0 * 1200.0;
constexpr double bend = 1.7; // cells
constexpr float deep_inside = 4;
constexpr std::uint32_t bend_x = 1000;
constexpr std::uint32_t bend_y = 1100;
constexpr std::uint32_t pebbles = 1200;

Grid<float> distances_to_border(const Grid<std::uint16_t>& province) {
    std::vector<int> border;
    for (int cell = 0; cell < province.cells(); ++cell) {
        bool other = false;
        for_neighbours(province.size, cell,
                       [&](int next) { other |= province[next] != province[cell]; });
        if (other)
            border.push_back(cell);
    }
    const Growth growth = grow(border, Grid<std::uint8_t>(province.size, 1));
    Grid<float> distances(province.size);
    for (int cell = 0; cell < province.cells(); ++cell)
        distances[cell] = static_cast<float>(growth.distance[cell]) / side_step + 0.5F;
    return distances;
}

/// How much the cell before, the nearest one and the next one count at an offset from the nearest
/// one's middle: a quadratic spline, smooth enough for shading.
std::array<double, 3> spline(double offset) {
    return {0.5 * (0.5 - offset) * (0.5 - offset), 0.75 - offset * offset,
            0.5 * (0.5 + offset) * (0.5 + offset)};
}

} // namespace

Size world_size(Size pixels) {
    const double area = static_cast<double>(pixels.width) * pixels.height;
    const double shrink = std::sqrt(std::min(1.0, most_cells / area));
    return {static_cast<int>(std::lround(pixels.width * shrink)),
            static_cast<int>(std::lround(pixels.height * shrink))};
}

MapView::MapView(const World& world, Size pixels)
    : world_(world),
      pixels_(pixels),
      cells_per_pixel_x_(static_cast<double>(world.province.size.width) / pixels.width),
      cells_per_pixel_y_(static_cast<double>(world.province.size.height) / pixels.height),
      to_border_(distances_to_border(world.province)) {}

int MapView::cell_at(int x, int y) const {
    const int column = static_cast<int>((x + 0.5) * cells_per_pixel_x_);
    const int row = static_cast<int>((y + 0.5) * cells_per_pixel_y_);
    return row * world_.province.size.width + column;
}

Point MapView::pixel_at(int cell) const {
    return {std::floor((world_.province.column(cell) + 0.5) / cells_per_pixel_x_),
            std::floor((world_.province.row(cell) + 0.5) / cells_per_pixel_y_)};
}

int MapView::province(int x, int y) const {
    const int cell = cell_at(x, y);
    if (is_one_to_one() || to_border_[cell] > deep_inside)
        return world_.province[cell];
    const double column = (x + 0.5) * cells_per_pixel_x_;
    const double row = (y + 0.5) * cells_per_pixel_y_;
    return most_of(column + bend * fractal(column / 6, row / 6, 3, bend_x),
                   row + bend * fractal(column / 6, row / 6, 3, bend_y));
}

int MapView::most_of(double column, double row) const {
    const double left = std::floor(column - 0.5);
    const double top = std::floor(row - 0.5);
    const double right_share = column - 0.5 - left;
    const double bottom_share = row - 0.5 - top;
    const int x = static_cast<int>(left);
    const int y = static_cast<int>(top);
    const auto& grid = world_.province;
    const std::array<int, 4> ids = {grid.near(x, y), grid.near(x + 1, y), grid.near(x, y + 1),
                                    grid.near(x + 1, y + 1)};
    if (ids[0] == ids[1] && ids[0] == ids[2] && ids[0] == ids[3])
        return ids[0];
    const std::array<double, 4> shares = {
        (1 - right_share) * (1 - bottom_share), right_share * (1 - bottom_share),
        (1 - right_share) * bottom_share, right_share * bottom_share};
    int best = 0;
    double most = -1;
    for (const int id : ids) {
        double share = 0;
        for (std::size_t index = 0; index < ids.size(); ++index)
            share += ids[index] == id ? shares[index] : 0;
        if (share > most) {
            most = share;
            best = id;
        }
    }
    return best;
}

void MapView::read_smooth_row(const Grid<float>& grid, int y, std::vector<double>& values) const {
    const double row = (y + 0.5) * cells_per_pixel_y_;
    const int middle = static_cast<int>(row);
    const auto down = spline(row - middle - 0.5);
    std::vector<double> blended(static_cast<std::size_t>(grid.size.width));
    for (int column = 0; column < grid.size.width; ++column) {
        double& value = blended[static_cast<std::size_t>(column)];
        for (int step = 0; step < 3; ++step)
            value += down[static_cast<std::size_t>(step)] *
                     static_cast<double>(grid.near(column, middle + step - 1));
    }
    const int last = grid.size.width - 1;
    for (int x = 0; x < pixels_.width; ++x) {
        const double column = (x + 0.5) * cells_per_pixel_x_;
        const int nearest = static_cast<int>(column);
        const auto across = spline(column - nearest - 0.5);
        values[static_cast<std::size_t>(x)] =
            across[0] * blended[static_cast<std::size_t>(std::max(nearest - 1, 0))] +
            across[1] * blended[static_cast<std::size_t>(nearest)] +
            across[2] * blended[static_cast<std::size_t>(std::min(nearest + 1, last))];
    }
}

void MapView::read_row(int y, std::vector<double>& heights, std::vector<double>& moistures) const {
    heights.resize(static_cast<std::size_t>(pixels_.width));
    moistures.resize(heights.size());
    read_smooth_row(world_.terrain.moisture, y, moistures);
    if (is_one_to_one()) {
        for (int x = 0; x < pixels_.width; ++x)
            heights[static_cast<std::size_t>(x)] =
                static_cast<double>(world_.terrain.height[y * pixels_.width + x]);
        return;
    }
    read_smooth_row(world_.terrain.height, y, heights);
    const double row = (y + 0.5) * cells_per_pixel_y_;
    for (int x = 0; x < pixels_.width; ++x) {
        double& height = heights[static_cast<std::size_t>(x)];
        const double column = (x + 0.5) * cells_per_pixel_x_;
        if (height > 0)
            height += (0.008 + 0.05 * height) * fractal(column / 3, row / 3, 2, pebbles);
    }
}

} // namespace sample
