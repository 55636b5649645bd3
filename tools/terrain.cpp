#include "terrain.h"

#include "growth.h"
#include "noise.h"
#include "regions.h"
#include "rivers.h"

#include <algorithm>
#include <cmath>

namespace sample {

namespace {

constexpr double land_share = 0.36;
constexpr double smallest_island = 45; // square units
constexpr double smallest_lake = 260;
constexpr std::size_t fewest_cells = 6; // of an island on a small map

enum Field : std::uint32_t {
    bend_x = 100,
    bend_y = 200,
    coast = 300,
    belts = 400,
    crests = 500,
    hills = 600,
    rain = 700
};

/// Returns how much something at `middle` is felt at the point: 1 there, 0 beyond its reach.
double influence(Point point, Point middle, double reach) {
    const double share = distance_squared(point, middle) / (reach * reach);
    return share < 1 ? (1 - share) * (1 - share) : 0;
}

/// Returns how much the land regions around the point raise it, and the seas between them sink it.
double rise_of_regions(Point point) {
    constexpr double sea_reach = 95;
    double rise = 0;
    for (const Region& region : regions()) {
        if (!region.continent.empty())
            rise += influence(point, on_chart(region.longitude, region.latitude),
                              reach_on_chart(region) * 1.3);
    }
    rise = std::min(rise, 0.75);
    for (const SeaArea& sea : sea_areas())
        rise -= 0.8 * influence(point, on_chart(sea.longitude, sea.latitude), sea_reach);
    return rise;
}

/// Returns how far the point stands above the sea floor, on a scale of its own.
double rough_height(Point unit, Point chart) {
    constexpr double bend = 120;
    const double bent_x = chart.x + bend * fractal(unit.x / 200, unit.y / 200, 5, bend_x);
    const double bent_y = chart.y + bend * fractal(unit.x / 200, unit.y / 200, 5, bend_y);
    const double to_side = std::min(chart.x, chart_width - chart.x);
    const double to_end = std::min(chart.y, chart_height - chart.y);
    return rise_of_regions({bent_x, bent_y}) + 1.0 * fractal(unit.x / 190, unit.y / 190, 8, coast) -
           0.9 * (1 - smooth_step(0, 90, to_side)) - 0.9 * (1 - smooth_step(0, 75, to_end));
}

double land_height(Point unit, double above_sea) {
    const double inland = smooth_step(0.02, 0.35, above_sea);
    const double belt = smooth_step(-0.05, 0.32, fractal(unit.x / 330, unit.y / 330, 3, belts));
    const double crest = ridges(unit.x / 130, unit.y / 130, 6, crests);
    const double hill = 0.5 + 0.5 * fractal(unit.x / 60, unit.y / 60, 5, hills);
    return std::clamp(0.03 + 0.09 * inland + 0.10 * hill * inland +
                          (0.1 + 0.9 * inland) * belt * smooth_step(0.42, 0.95, crest) * 0.95,
                      0.005, 1.0);
}

double moisture_at(Point unit, double latitude) {
    const double from_equator = std::abs(latitude);
    const double desert_belt = 1 - std::min(1.0, std::abs(from_equator - 25) / 15);
    const double rain_belt = 1 - std::min(1.0, from_equator / 16);
    return std::clamp(0.55 + 0.75 * fractal(unit.x / 210, unit.y / 210, 4, rain) -
                          0.36 * desert_belt + 0.25 * rain_belt,
                      0.0, 1.0);
}

double sea_level(const Grid<float>& height) {
    std::vector<float> sorted = height.values;
    const auto level = sorted.begin() + static_cast<std::ptrdiff_t>(
                                            static_cast<double>(sorted.size()) * (1 - land_share));
    std::nth_element(sorted.begin(), level, sorted.end());
    return static_cast<double>(*level);
}

std::size_t fewest_cells_of(const Terrain& terrain, double area) {
    const double cells = std::ceil(area / (terrain.unit * terrain.unit));
    return std::max(fewest_cells, static_cast<std::size_t>(cells));
}

/// Turns islands and lakes that are too small for a province into what surrounds them.
void drop_specks(Terrain& terrain, Ground ground, double smallest, float new_height) {
    const auto fewest = fewest_cells_of(terrain, smallest);
    for (const auto& group : connected(terrain.ground, ground)) {
        if (group.size() >= fewest)
            continue;
        for (const int cell : group) {
            terrain.ground[cell] = ground == Ground::sea ? Ground::land : Ground::sea;
            terrain.height[cell] = new_height;
        }
    }
}

} // namespace

Terrain::Terrain(Size cells)
    : unit(std::sqrt(chart_width * chart_height /
                     (static_cast<double>(cells.width) * cells.height))),
      ground(cells),
      height(cells),
      moisture(cells) {}

Point Terrain::in_units(int cell) const {
    return {(height.column(cell) + 0.5) * unit, (height.row(cell) + 0.5) * unit};
}

Point Terrain::on_chart(int cell) const {
    return {(height.column(cell) + 0.5) * chart_width / height.size.width,
            (height.row(cell) + 0.5) * chart_height / height.size.height};
}

double warmth(double latitude, double height) {
    return std::clamp(1.15 - std::abs(latitude) / 72 - 0.45 * height, 0.0, 1.0);
}

Terrain make_terrain(Size cells) {
    Terrain terrain(cells);
    for (int cell = 0; cell < terrain.height.cells(); ++cell)
        terrain.height[cell] =
            static_cast<float>(rough_height(terrain.in_units(cell), terrain.on_chart(cell)));

    const double level = sea_level(terrain.height);
    for (int cell = 0; cell < terrain.height.cells(); ++cell) {
        const Point unit = terrain.in_units(cell);
        const double above_sea = static_cast<double>(terrain.height[cell]) - level;
        const bool land = above_sea > 0;
        terrain.ground[cell] = land ? Ground::land : Ground::sea;
        terrain.height[cell] =
            static_cast<float>(land ? land_height(unit, above_sea) : std::min(above_sea, -0.005));
        terrain.moisture[cell] =
            static_cast<float>(moisture_at(unit, latitude_of(terrain.on_chart(cell).y)));
    }
    drop_specks(terrain, Ground::land, smallest_island, -0.01F);
    drop_specks(terrain, Ground::sea, smallest_lake, 0.05F);
    add_rivers(terrain, fewest_cells_of(terrain, smallest_island));
    return terrain;
}

} // namespace sample
