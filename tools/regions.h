#pragma once

#include "grid.h"

#include <span>
#include <string_view>
#include <vector>

namespace sample {

/// Where a region lies, and what its provinces are like. Lists are codes separated by blanks. The
/// sample world is invented, but the codes of the language files sound right where they stand.
struct Region {
    std::string_view code;
    std::string_view continent; // empty: a part of the ocean
    int longitude;              // degrees
    int latitude;
    int reach;               // degrees of longitude around the point that are its own
    std::string_view speech; // name style
    std::string_view religions;
    std::string_view cultures;
    std::string_view areas;
    bool in_empire = false;
};

/// A part of the sea with an area code of its own.
struct SeaArea {
    std::string_view code;
    int longitude;
    int latitude;
};

std::span<const Region> regions();
std::span<const SeaArea> sea_areas();

/// Positions by longitude and latitude are measured on a chart of this many units, whatever the
/// size of the map; two units are as far apart in both directions.
inline constexpr double chart_width = 2400;
inline constexpr double chart_height = 1200;

/// Returns where the longitude and latitude lie on the chart.
Point on_chart(int longitude, int latitude);

/// Returns the latitude of a height on the chart, in degrees.
double latitude_of(double chart_y);

/// Returns how far the region reaches, in units of the chart.
double reach_on_chart(const Region& region);

/// Returns the index of the region that a point of the chart belongs to: a land or an ocean one.
std::size_t region_at(Point on_chart, bool land);

/// Returns the words of a list.
std::vector<std::string_view> words(std::string_view list);

} // namespace sample
