#include "seeds.h"

#include "growth.h"
#include "random.h"
#include "regions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

namespace sample {

namespace {

/// Returns how far apart seeds stand at the cell, compared with elsewhere.
double spacing(const Terrain& terrain, Ground ground, int cell) {
    if (ground != Ground::land)
        return 1;
    const Point chart = terrain.on_chart(cell);
    return std::clamp(regions()[region_at(chart, true)].reach / 13.0, 0.5, 1.5);
}

/// Returns how many seeds each group deserves for its size; every group has one.
std::vector<int> shares(const std::vector<double>& weights, int count) {
    if (static_cast<int>(weights.size()) > count)
        throw std::invalid_argument("the map is too small for its islands and inland seas");
    double total = 0;
    for (const double weight : weights)
        total += weight;
    std::vector<int> result;
    int given = 0;
    for (const double weight : weights) {
        result.push_back(std::max(1, static_cast<int>(weight / total * count)));
        given += result.back();
    }
    const auto largest = std::max_element(weights.begin(), weights.end()) - weights.begin();
    result[static_cast<std::size_t>(largest)] += count - given;
    return result;
}

/// Adds seeds to a group, each the best of some random cells: the one farthest from the others.
void scatter(const Terrain& terrain, Ground ground, const std::vector<int>& group, int count,
             Random& random, std::vector<int>& seeds) {
    if (static_cast<int>(group.size()) < count)
        throw std::invalid_argument("the map is too small for so many provinces");
    constexpr int tries = 24;
    std::vector<Point> placed;
    for (int seed = 0; seed < count; ++seed) {
        int best = -1;
        double best_distance = 0;
        for (int attempt = 0; attempt < tries || best < 0; ++attempt) {
            const int cell = random.pick(group);
            const Point point = terrain.in_units(cell);
            double nearest = std::numeric_limits<double>::max();
            for (const Point& other : placed)
                nearest = std::min(nearest, distance_squared(point, other));
            const double share = spacing(terrain, ground, cell);
            if (nearest / (share * share) > best_distance) {
                best_distance = nearest / (share * share);
                best = cell;
            }
        }
        placed.push_back(terrain.in_units(best));
        seeds.push_back(best);
    }
}

} // namespace

std::vector<int> spread_seeds(const Terrain& terrain, Ground ground, int count) {
    constexpr std::size_t stride = 8; // a sample of the cells weighs a group well enough
    const auto groups = connected(terrain.ground, ground);
    std::vector<double> weights;
    for (const auto& group : groups) {
        double weight = 0;
        for (std::size_t index = 0; index < group.size(); index += stride) {
            const double apart = spacing(terrain, ground, group[index]);
            weight += 1 / (apart * apart);
        }
        weights.push_back(weight);
    }
    const auto seeds_of_group = shares(weights, count);
    Random random(static_cast<std::uint64_t>(count));
    std::vector<int> seeds;
    for (std::size_t group = 0; group < groups.size(); ++group)
        scatter(terrain, ground, groups[group], seeds_of_group[group], random, seeds);
    return seeds;
}

std::vector<int> divide(const std::vector<Point>& points, int parts) {
    std::vector<int> part_of(points.size(), 0);
    std::vector<double> nearest(points.size(), std::numeric_limits<double>::max());
    std::size_t middle = 0;
    for (int part = 0; part < parts; ++part) {
        for (std::size_t index = 0; index < points.size(); ++index) {
            const double distance = distance_squared(points[index], points[middle]);
            if (distance < nearest[index]) {
                nearest[index] = distance;
                part_of[index] = part;
            }
        }
        // The next part begins where one is farthest from all the others.
        middle = static_cast<std::size_t>(std::max_element(nearest.begin(), nearest.end()) -
                                          nearest.begin());
    }
    return part_of;
}

} // namespace sample
