#include "map_writer.h"

#include "map_colours.h"
#include "regions.h"

#include <algorithm>

namespace sample {

namespace {

constexpr double steepness = 11; // how strongly slopes are shaded

/// Returns what lies between a province and another one.
Border border(const World& world, const PoliticalColours& political, std::size_t id,
              std::size_t other) {
    if (id == other)
        return Border::none;
    const Ground one = world.provinces[id].ground;
    const Ground two = world.provinces[other].ground;
    if (one == Ground::river || two == Ground::river)
        return Border::none;
    if (one != two)
        return Border::coast;
    return political.fill[id] == political.fill[other] ? Border::province : Border::nation;
}

/// Returns the moisture around the cell, so that its colours pass gently into each other.
double smooth_moisture(const Grid<float>& moisture, int cell) {
    const auto weight = [](int step) { return step == 0 ? 0.75 : 0.125; };
    double sum = 0;
    for (int dx = -1; dx <= 1; ++dx) {
        double down = 0;
        for (int dy = -1; dy <= 1; ++dy)
            down += weight(dy) * static_cast<double>(moisture.near(moisture.column(cell) + dx,
                                                                   moisture.row(cell) + dy));
        sum += weight(dx) * down;
    }
    return sum;
}

} // namespace

void write_maps(const World& world, Size pixels, const std::filesystem::path& folder) {
    const PoliticalColours political(world);
    const Size size = world.province.size;
    const auto& height = world.terrain.height;
    Grid<Colour> relief(size);
    Grid<std::uint8_t> nations(size);
    Grid<Colour> identification(size);
    for (int cell = 0; cell < world.province.cells(); ++cell) {
        const int right = world.province.column(cell) + 1 < size.width ? cell + 1 : cell;
        const int below = world.province.row(cell) + 1 < size.height ? cell + size.width : cell;
        const std::uint16_t id = world.province[cell];
        const Border edge = std::max(border(world, political, id, world.province[right]),
                                     border(world, political, id, world.province[below]));
        const double here = static_cast<double>(height[cell]);
        const double slope = (static_cast<double>(height[right]) - here) +
                             (static_cast<double>(height[below]) - here);
        const double light = std::clamp(0.5 + slope * (steepness / world.terrain.unit), 0.0, 1.0);
        relief[cell] = relief_colour(world.provinces[id].ground, here,
                                     smooth_moisture(world.terrain.moisture, cell),
                                     latitude_of(world.terrain.on_chart(cell).y), light, edge);
        nations[cell] = political.index(id, edge);
        identification[cell] = identification_colour(id);
    }
    write_bitmap(folder / "map1.bmp", relief, pixels);
    write_bitmap(folder / "map2.bmp", nations, pixels, political.palette);
    write_bitmap(folder / "idmap.bmp", identification, pixels);
}

} // namespace sample
