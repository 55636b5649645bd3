#pragma once

#include "terrain.h"

#include <vector>

namespace sample {

/// Returns `count` cells of that ground from which provinces may grow: spread evenly, closer
/// together in regions of small reach, and at least one in each island or inland sea. Throws
/// std::invalid_argument when there are more of those than seeds.
std::vector<int> spread_seeds(const Terrain& terrain, Ground ground, int count);

/// Divides the points into at most `parts` groups of near points; returns the group of each.
std::vector<int> divide(const std::vector<Point>& points, int parts);

} // namespace sample
