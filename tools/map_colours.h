#pragma once

#include "files.h"
#include "world.h"

#include <vector>

namespace sample {

/// Returns the colour by which the identification map tells the province.
Colour identification_colour(int province);

/// What a pixel lies on the border of.
enum class Border { none, province, nation, coast };

/// Returns the relief map's colour. `light` is 0 on the slopes turned away from the light, 1 on
/// those that face it; the latitude is in degrees.
Colour relief_colour(Ground ground, double height, double moisture, double latitude, double light,
                     Border border);

/// The political map: which palette colour a province has, and what its borders look like.
struct PoliticalColours {
    explicit PoliticalColours(const World& world);

    /// Returns the palette index of a pixel.
    std::uint8_t index(int province, Border border) const;

    std::vector<Colour> palette;
    std::vector<std::uint8_t> fill; // palette index by province; the next one is the border's
};

} // namespace sample
