#pragma once

#include "grid.h"

#include <span>
#include <vector>

namespace sample {

/// What every cell learns when all seeds grow at once.
struct Growth {
    Grid<int> seed;     // index of the seed that came first; -1 where none came
    Grid<int> from;     // cell that it came from; the cell itself for a seed
    Grid<int> distance; // sum of the costs on the way
};

/// One step across a cell's side is its cost times this, one across a corner a little more.
inline constexpr int side_step = 5;
inline constexpr int corner_step = 7;
inline constexpr int highest_cost = 18;

/// Grows the seed cells over the grid. A cell costs 1 to `highest_cost` to enter; 0 closes it. What
/// grows never slips between two closed cells that touch at a corner.
Growth grow(std::span<const int> seeds, const Grid<std::uint8_t>& cost);

/// Returns the groups of cells of that value that hang together by their sides.
template <class Value>
std::vector<std::vector<int>> connected(const Grid<Value>& grid, Value value) {
    std::vector<std::vector<int>> groups;
    Grid<std::uint8_t> seen(grid.size);
    for (int first = 0; first < grid.cells(); ++first) {
        if (grid[first] != value || seen[first])
            continue;
        std::vector<int> group{first};
        seen[first] = 1;
        for (std::size_t next = 0; next < group.size(); ++next) {
            for_neighbours(grid.size, group[next], [&](int neighbour) {
                if (grid[neighbour] != value || seen[neighbour])
                    return;
                seen[neighbour] = 1;
                group.push_back(neighbour);
            });
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

} // namespace sample
