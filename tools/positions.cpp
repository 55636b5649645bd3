#include "positions.h"

#include "random.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

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

/// Returns the pixel nearest to the cell that shows the province: bent borders may have moved it.
Pixel own_pixel(const MapView& view, int province, int cell) {
    constexpr int farthest = 80;
    const Point middle = view.pixel_at(cell);
    const int x = static_cast<int>(middle.x);
    const int y = static_cast<int>(middle.y);
    for (int ring = 0; ring < farthest; ++ring) {
        for (int dy = -ring; dy <= ring; ++dy) {
            const int step = std::abs(dy) == ring || ring == 0 ? 1 : 2 * ring;
            for (int dx = -ring; dx <= ring; dx += step) {
                if (x + dx >= 0 && y + dy >= 0 && x + dx < view.size().width &&
                    y + dy < view.size().height && view.province(x + dx, y + dy) == province)
                    return {x + dx, y + dy};
            }
        }
    }
    throw std::invalid_argument("the map is too small: province " + std::to_string(province) +
                                " has no pixel");
}

/// Chooses cells of a province that are deep inside it and far from those chosen before.
class Chooser {
  public:
    Chooser(const MapView& view, const std::vector<int>& cells, Random& random) : view_(view) {
        constexpr int most_candidates = 90;
        for (int candidate = 0; candidate < most_candidates; ++candidate)
            candidates_.push_back(random.pick(cells));
        candidates_.push_back(*std::max_element(cells.begin(), cells.end(), [&](int a, int b) {
            return view.to_border(a) < view.to_border(b);
        }));
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
        return std::min(2.2 * view_.to_border(cell), std::sqrt(nearest));
    }

    Point middle(int cell) const {
        const auto& grid = view_.world().province;
        return {static_cast<double>(grid.column(cell)), static_cast<double>(grid.row(cell))};
    }

    const MapView& view_;
    std::vector<int> candidates_;
    std::vector<int> chosen_;
    double room_ = 0;
};

/// Puts the port on the coast nearest to the city; without a coast there is none.
void place_port(const MapView& view, int province, const std::vector<int>& cells, int city,
                Positions& positions) {
    const World& world = view.world();
    const Point middle = world.terrain.in_units(city);
    int port = -1;
    double least = std::numeric_limits<double>::max();
    for (const int cell : cells) {
        const double distance = distance_squared(world.terrain.in_units(cell), middle);
        if (distance >= least)
            continue;
        for_neighbours(world.province.size, cell, [&](int next) {
            if (world.terrain.ground[next] != Ground::sea)
                return;
            port = cell;
            least = distance;
            positions.sea = world.province[next];
        });
    }
    if (port >= 0)
        positions.port = own_pixel(view, province, port);
}

Positions positions_of(const MapView& view, int province, const std::vector<int>& cells) {
    const World& world = view.world();
    Random random(static_cast<std::uint64_t>(province));
    Chooser chooser(view, cells, random);
    Positions positions;
    const int first = chooser.next();
    const Pixel middle = own_pixel(view, province, first);
    if (world.provinces[static_cast<std::size_t>(province)].ground != Ground::land) {
        positions.army = middle;
        return positions;
    }
    positions.city = middle;
    positions.army = own_pixel(view, province, chooser.next());
    positions.manufactory = own_pixel(view, province, chooser.next());
    place_port(view, province, cells, first, positions);
    for (int drawing = 0; drawing < most_drawings; ++drawing) {
        const int cell = chooser.next();
        if (chooser.room() * world.terrain.unit < drawings_apart)
            break;
        positions.drawings.push_back(own_pixel(view, province, cell));
    }
    return positions;
}

} // namespace

std::vector<Positions> make_positions(const MapView& view) {
    const auto cells = cells_by_province(view.world());
    std::vector<Positions> positions(1);
    for (std::size_t province = 1; province < cells.size(); ++province)
        positions.push_back(positions_of(view, static_cast<int>(province), cells[province]));
    return positions;
}

} // namespace sample
