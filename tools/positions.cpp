#include "positions.h"

#include "growth.h"
#include "random.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sample {

namespace {

constexpr int most_drawings = 4;
constexpr double drawings_apart = 8; // units

std::vector<std::vector<int>> cells_by_province(const World& world) {
    std::vector<std::vector<int>> cells(world.provinces.size());
    for (int cell = 0; cell < world.province.cells(); ++cell)
        cells[world.province[cell]].push_back(cell);
    return cells;
}

/// Returns every cell's distance to the nearest cell of another province, in cells.
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

/// Chooses cells of a province that are deep inside it and far from those chosen before.
class Chooser {
  public:
    Chooser(const Grid<float>& to_border, const std::vector<int>& cells, Random& random)
        : to_border_(to_border) {
        constexpr int most_candidates = 90;
        for (int candidate = 0; candidate < most_candidates; ++candidate)
            candidates_.push_back(random.pick(cells));
        candidates_.push_back(*std::max_element(
            cells.begin(), cells.end(), [&](int a, int b) { return to_border[a] < to_border[b]; }));
    }

    /// Returns the next cell.
    int next() {
        const int best = *std::max_element(candidates_.begin(), candidates_.end(),
                                           [&](int a, int b) { return score(a) < score(b); });
        room_ = score(best);
        chosen_.push_back(best);
        return best;
    }

    /// Returns how much room the cell chosen last has, in cells.
    double room() const { return room_; }

  private:
    double score(int cell) const {
        double nearest = std::numeric_limits<double>::max();
        for (const int other : chosen_)
            nearest = std::min(nearest, distance_squared(middle(cell), middle(other)));
        return std::min(2.2 * static_cast<double>(to_border_[cell]), std::sqrt(nearest));
    }

    Point middle(int cell) const {
        return {static_cast<double>(to_border_.column(cell)),
                static_cast<double>(to_border_.row(cell))};
    }

    const Grid<float>& to_border_;
    std::vector<int> candidates_;
    std::vector<int> chosen_;
    double room_ = 0;
};

/// Returns the pixel in the middle of those that show the cell.
Pixel pixel_of(const World& world, Size pixels, int cell) {
    const auto& grid = world.province;
    return {at_same_place(grid.column(cell), grid.size.width, pixels.width),
            at_same_place(grid.row(cell), grid.size.height, pixels.height)};
}

/// Puts the port on the coast nearest to the city; without a coast there is none.
void place_port(const World& world, Size pixels, const std::vector<int>& cells, int city,
                Positions& positions) {
    const Point middle = world.terrain.in_units(city);
    double least = std::numeric_limits<double>::max();
    for (const int cell : cells) {
        const double distance = distance_squared(world.terrain.in_units(cell), middle);
        if (distance >= least)
            continue;
        for_neighbours(world.province.size, cell, [&](int next) {
            if (world.terrain.ground[next] != Ground::sea)
                return;
            least = distance;
            positions.port = pixel_of(world, pixels, cell);
            positions.sea = world.province[next];
        });
    }
}

Positions positions_of(const World& world, Size pixels, const Grid<float>& to_border, int province,
                       const std::vector<int>& cells) {
    Random random(static_cast<std::uint64_t>(province));
    Chooser chooser(to_border, cells, random);
    const auto next = [&] { return pixel_of(world, pixels, chooser.next()); };
    Positions positions;
    if (world.provinces[static_cast<std::size_t>(province)].ground != Ground::land) {
        positions.army = next();
        return positions;
    }
    const int city = chooser.next();
    positions.city = pixel_of(world, pixels, city);
    positions.army = next();
    positions.manufactory = next();
    place_port(world, pixels, cells, city, positions);
    for (int drawing = 0; drawing < most_drawings; ++drawing) {
        const Pixel pixel = next();
        if (chooser.room() * world.terrain.unit < drawings_apart)
            break;
        positions.drawings.push_back(pixel);
    }
    return positions;
}

} // namespace

std::vector<Positions> make_positions(const World& world, Size pixels) {
    const auto cells = cells_by_province(world);
    const auto to_border = distances_to_border(world.province);
    std::vector<Positions> positions(1);
    for (std::size_t id = 1; id < cells.size(); ++id)
        positions.push_back(
            positions_of(world, pixels, to_border, static_cast<int>(id), cells[id]));
    return positions;
}

} // namespace sample
