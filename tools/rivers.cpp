#include "rivers.h"

#include "growth.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

constexpr std::size_t wanted_rivers = 26;
constexpr double shortest = 70; // units
constexpr double apart = 90;    // between two springs
constexpr std::uint32_t valleys = 800;

/// Water seeks valleys, and avoids heights.
Grid<std::uint8_t> cost_of_flow(const Terrain& terrain) {
    Grid<std::uint8_t> cost(terrain.ground.size);
    for (int cell = 0; cell < cost.cells(); ++cell) {
        if (terrain.ground[cell] != Ground::land)
            continue;
        const Point unit = terrain.in_units(cell);
        const double valley = std::abs(fractal(unit.x / 34, unit.y / 34, 3, valleys));
        const double height = static_cast<double>(terrain.height[cell]);
        cost[cell] =
            static_cast<std::uint8_t>(std::clamp(1 + 16 * valley + 12 * height, 1.0, 18.0));
    }
    return cost;
}

std::vector<int> mouths(const Terrain& terrain) {
    std::vector<int> cells;
    for (int cell = 0; cell < terrain.ground.cells(); ++cell) {
        bool at_sea = false;
        for_neighbours(terrain.ground.size, cell,
                       [&](int next) { at_sea |= terrain.ground[next] == Ground::sea; });
        if (at_sea && terrain.ground[cell] == Ground::land)
            cells.push_back(cell);
    }
    return cells;
}

/// Returns the places far from the sea, the farthest ones first, well apart from each other.
std::vector<int> springs(const Terrain& terrain, const Growth& flow) {
    std::vector<int> candidates;
    const int stride = std::max(1, static_cast<int>(5 / terrain.unit));
    for (int row = 0; row < terrain.ground.size.height; row += stride) {
        for (int column = 0; column < terrain.ground.size.width; column += stride) {
            const int cell = row * terrain.ground.size.width + column;
            if (flow.seed[cell] >= 0 && terrain.moisture[cell] > 0.25F)
                candidates.push_back(cell);
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [&](int a, int b) { return flow.distance[a] > flow.distance[b]; });
    std::vector<int> chosen;
    for (const int cell : candidates) {
        const bool free = std::none_of(chosen.begin(), chosen.end(), [&](int other) {
            return distance_squared(terrain.in_units(cell), terrain.in_units(other)) <
                   apart * apart;
        });
        if (free)
            chosen.push_back(cell);
    }
    return chosen;
}

/// Turns the land within `radius` cells of the cell into river, and notes the cells.
void widen(Terrain& terrain, int cell, double radius, std::vector<int>& cells) {
    const int reach = static_cast<int>(radius);
    const Size size = terrain.ground.size;
    for (int dy = -reach; dy <= reach; ++dy) {
        for (int dx = -reach; dx <= reach; ++dx) {
            const int column = terrain.ground.column(cell) + dx;
            const int row = terrain.ground.row(cell) + dy;
            if (dx * dx + dy * dy > radius * radius || column < 0 || row < 0 ||
                column >= size.width || row >= size.height)
                continue;
            const int wet = row * size.width + column;
            if (terrain.ground[wet] != Ground::land)
                continue;
            terrain.ground[wet] = Ground::river;
            cells.push_back(wet);
        }
    }
}

/// Follows the flow from the spring to the sea or to another river.
std::vector<int> course(const Terrain& terrain, const Growth& flow, int spring) {
    std::vector<int> cells;
    int cell = spring;
    while (terrain.ground[cell] == Ground::land) {
        cells.push_back(cell);
        if (flow.from[cell] == cell)
            break;
        cell = flow.from[cell];
    }
    return cells;
}

void drown_slivers(Terrain& terrain, std::size_t fewest_cells) {
    Grid<int> river_of(terrain.ground.size, -1);
    for (std::size_t river = 0; river < terrain.rivers.size(); ++river) {
        for (const int cell : terrain.rivers[river])
            river_of[cell] = static_cast<int>(river);
    }
    for (const auto& group : connected(terrain.ground, Ground::land)) {
        if (group.size() >= fewest_cells)
            continue;
        int river = -1;
        for (const int cell : group) {
            for_neighbours(terrain.ground.size, cell,
                           [&](int next) { river = std::max(river, river_of[next]); });
        }
        if (river < 0)
            continue;
        auto& cells = terrain.rivers[static_cast<std::size_t>(river)];
        cells.insert(cells.end(), group.begin(), group.end());
        for (const int cell : group)
            terrain.ground[cell] = Ground::river;
    }
}

/// Adds the river from the spring, unless it is too short to be worth a province.
void add_river(Terrain& terrain, const Growth& flow, int spring) {
    const auto path = course(terrain, flow, spring);
    if (static_cast<double>(path.size()) * terrain.unit < shortest)
        return;
    std::vector<int> cells;
    for (std::size_t step = 0; step < path.size(); ++step) {
        const double age = static_cast<double>(step) / static_cast<double>(path.size());
        widen(terrain, path[step], (1.0 + 0.8 * age) / terrain.unit, cells);
    }
    terrain.rivers.push_back(std::move(cells));
}

} // namespace

void add_rivers(Terrain& terrain, std::size_t fewest_cells) {
    const Growth flow = grow(mouths(terrain), cost_of_flow(terrain));
    for (const int spring : springs(terrain, flow)) {
        if (terrain.rivers.size() < wanted_rivers)
            add_river(terrain, flow, spring);
    }
    drown_slivers(terrain, fewest_cells);
}

} // namespace sample
