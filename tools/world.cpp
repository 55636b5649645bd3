#include "world.h"

#include "data/province_table.h"
#include "growth.h"
#include "noise.h"
#include "regions.h"
#include "seeds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <stdexcept>
#include <tuple>

namespace sample {

namespace {

constexpr int sea_provinces = 372;
constexpr std::uint32_t land_ways = 900;
constexpr std::uint32_t sea_ways = 950;

/// Provinces grow slowly over heights and rough ground, so that their borders follow it.
Grid<std::uint8_t> cost_of_growth(const Terrain& terrain, Ground ground) {
    Grid<std::uint8_t> cost(terrain.ground.size);
    for (int cell = 0; cell < cost.cells(); ++cell) {
        if (terrain.ground[cell] != ground)
            continue;
        const Point unit = terrain.in_units(cell);
        const double wanted = ground == Ground::land
                                  ? 5 + 9 * fractal(unit.x / 12, unit.y / 12, 3, land_ways) +
                                        8 * static_cast<double>(terrain.height[cell])
                                  : 5 + 6 * fractal(unit.x / 40, unit.y / 40, 4, sea_ways);
        cost[cell] =
            static_cast<std::uint8_t>(std::clamp(wanted, 1.0, static_cast<double>(highest_cost)));
    }
    return cost;
}

/// Lets provinces grow over all ground of a kind, numbered from the next free identifier.
void settle(World& world, Ground ground, int count) {
    const auto first = world.provinces.size();
    const auto seeds = spread_seeds(world.terrain, ground, count);
    const Growth growth = grow(seeds, cost_of_growth(world.terrain, ground));
    for (int cell = 0; cell < world.province.cells(); ++cell) {
        if (growth.seed[cell] >= 0)
            world.province[cell] =
                static_cast<std::uint16_t>(first + static_cast<std::size_t>(growth.seed[cell]));
    }
    world.provinces.resize(first + seeds.size());
}

void settle_rivers(World& world) {
    for (const auto& river : world.terrain.rivers) {
        for (const int cell : river)
            world.province[cell] = static_cast<std::uint16_t>(world.provinces.size());
        world.provinces.emplace_back();
    }
}

/// Works out what the cells of a province have in common.
void survey(World& world) {
    for (int cell = 0; cell < world.province.cells(); ++cell) {
        Province& province = world.provinces[world.province[cell]];
        const Point chart = world.terrain.on_chart(cell);
        province.ground = world.terrain.ground[cell];
        province.centre.x += chart.x;
        province.centre.y += chart.y;
        province.height += static_cast<double>(world.terrain.height[cell]);
        province.moisture += static_cast<double>(world.terrain.moisture[cell]);
        ++province.cells;
    }
    for (std::size_t id = 1; id < world.provinces.size(); ++id) {
        Province& province = world.provinces[id];
        if (province.cells == 0)
            throw std::invalid_argument("the map is too small for so many provinces");
        for (double* sum :
             {&province.centre.x, &province.centre.y, &province.height, &province.moisture})
            *sum /= province.cells;
        province.region = region_at(province.centre, province.ground != Ground::sea);
    }
}

/// Returns the provinces of that ground and region.
std::vector<int> members(const World& world, Ground ground, std::size_t region) {
    std::vector<int> ids;
    for (std::size_t id = 1; id < world.provinces.size(); ++id) {
        if (world.provinces[id].ground == ground && world.provinces[id].region == region)
            ids.push_back(static_cast<int>(id));
    }
    return ids;
}

/// Divides the provinces of every region among its areas, and again among its cultures.
void divide_regions(World& world) {
    for (std::size_t region = 0; region < regions().size(); ++region) {
        const auto ids = members(world, Ground::land, region);
        std::vector<Point> centres;
        centres.reserve(ids.size());
        for (const int id : ids)
            centres.push_back(world.provinces[static_cast<std::size_t>(id)].centre);
        const auto areas = words(regions()[region].areas).size();
        const auto area_of = divide(centres, static_cast<int>(areas));
        std::reverse(centres.begin(), centres.end()); // other middles for the cultures
        const auto culture_of =
            divide(centres, static_cast<int>(words(regions()[region].cultures).size()));
        for (std::size_t index = 0; index < ids.size(); ++index) {
            Province& province = world.provinces[static_cast<std::size_t>(ids[index])];
            province.area = areas == 0 ? -1 : area_of[index];
            province.culture = culture_of[ids.size() - 1 - index];
        }
    }
}

/// Gives the named parts of the sea to the sea provinces in and around them.
void name_sea_areas(World& world) {
    constexpr double reach = 85; // units of the chart
    const auto areas = sea_areas();
    for (std::size_t area = 0; area < areas.size(); ++area) {
        const Point middle = on_chart(areas[area].longitude, areas[area].latitude);
        Province* nearest = nullptr;
        double least = std::numeric_limits<double>::max();
        for (Province& province : world.provinces) {
            if (province.ground != Ground::sea || province.cells == 0)
                continue;
            const double distance = distance_squared(province.centre, middle);
            if (distance < reach * reach && province.area < 0)
                province.area = static_cast<int>(area);
            if (distance < least) {
                least = distance;
                nearest = &province;
            }
        }
        if (nearest)
            nearest->area = static_cast<int>(area);
    }
}

/// Returns where a province stands in the order of the identifiers.
auto place_in_order(const Province& province) {
    constexpr std::array<int, 3> order = {2, 0, 1}; // sea, land, river
    const Region& region = regions()[province.region];
    return std::tuple(order[static_cast<std::size_t>(province.ground)], region.continent,
                      province.region, province.area, province.centre.y, province.centre.x);
}

void renumber(World& world) {
    std::vector<std::size_t> order(world.provinces.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin() + 1, order.end(), [&](std::size_t a, std::size_t b) {
        return place_in_order(world.provinces[a]) < place_in_order(world.provinces[b]);
    });
    std::vector<std::uint16_t> new_id(order.size());
    std::vector<Province> sorted;
    for (std::size_t id = 0; id < order.size(); ++id) {
        new_id[order[id]] = static_cast<std::uint16_t>(id);
        sorted.push_back(world.provinces[order[id]]);
    }
    world.provinces = std::move(sorted);
    for (auto& id : world.province.values)
        id = new_id[id];
}

void find_neighbours(World& world) {
    for (int cell = 0; cell < world.province.cells(); ++cell) {
        for_neighbours(world.province.size, cell, [&](int next) {
            const int other = world.province[next];
            if (other == world.province[cell])
                return;
            auto& known = world.provinces[world.province[cell]].neighbours;
            const auto place = std::lower_bound(known.begin(), known.end(), other);
            if (place == known.end() || *place != other)
                known.insert(place, other);
        });
    }
}

} // namespace

World make_world(Size cells) {
    World world{make_terrain(cells), Grid<std::uint16_t>(cells), std::vector<Province>(1)};
    const int rivers = static_cast<int>(world.terrain.rivers.size());
    settle(world, Ground::land, data::last_province - sea_provinces - rivers);
    settle(world, Ground::sea, sea_provinces);
    settle_rivers(world);
    survey(world);
    divide_regions(world);
    name_sea_areas(world);
    renumber(world);
    find_neighbours(world);
    return world;
}

} // namespace sample
