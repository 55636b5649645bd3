#include "growth.h"

#include <array>
#include <limits>

namespace sample {

namespace {

struct Step {
    int dx;
    int dy;
    int length;
};

constexpr std::array<Step, 8> steps = {{{-1, 0, side_step},
                                        {1, 0, side_step},
                                        {0, -1, side_step},
                                        {0, 1, side_step},
                                        {-1, -1, corner_step},
                                        {1, -1, corner_step},
                                        {-1, 1, corner_step},
                                        {1, 1, corner_step}}};

bool is_open(const Grid<std::uint8_t>& cost, int column, int row) {
    return column >= 0 && row >= 0 && column < cost.size.width && row < cost.size.height &&
           cost[row * cost.size.width + column] != 0;
}

} // namespace

Growth grow(std::span<const int> seeds, const Grid<std::uint8_t>& cost) {
    Growth growth{Grid<int>(cost.size, -1), Grid<int>(cost.size, -1),
                  Grid<int>(cost.size, std::numeric_limits<int>::max())};

    // The longest step is short, so the cells wait in a ring of lists, one for each distance.
    constexpr std::size_t ring = corner_step * highest_cost + 1;
    std::array<std::vector<int>, ring> waiting;
    for (std::size_t index = 0; index < seeds.size(); ++index) {
        const int cell = seeds[index];
        growth.seed[cell] = static_cast<int>(index);
        growth.from[cell] = cell;
        growth.distance[cell] = 0;
        waiting[0].push_back(cell);
    }

    std::vector<int> now;
    std::size_t empty_lists = 0;
    for (int distance = 0; empty_lists < ring; ++distance) {
        now.swap(waiting[static_cast<std::size_t>(distance) % ring]);
        empty_lists = now.empty() ? empty_lists + 1 : 0;
        for (const int cell : now) {
            if (growth.distance[cell] != distance)
                continue;
            const int column = cost.column(cell);
            const int row = cost.row(cell);
            for (const Step& step : steps) {
                if (!is_open(cost, column + step.dx, row + step.dy) ||
                    !(is_open(cost, column + step.dx, row) && is_open(cost, column, row + step.dy)))
                    continue;
                const int next = cell + step.dy * cost.size.width + step.dx;
                const int reached = distance + step.length * cost[next];
                if (reached >= growth.distance[next])
                    continue;
                growth.distance[next] = reached;
                growth.seed[next] = growth.seed[cell];
                growth.from[next] = cell;
                waiting[static_cast<std::size_t>(reached) % ring].push_back(next);
            }
        }
        now.clear();
    }
    return growth;
}

} // namespace sample
