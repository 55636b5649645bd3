#include "map_colours.h"

#include "noise.h"
#include "random.h"
#include "regions.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace sample {

namespace {

/// A colour that is being worked out, channels 0 to 255.
struct Tint {
    double red;
    double green;
    double blue;
};

Tint mix(Tint from, Tint to, double share) {
    return {from.red + (to.red - from.red) * share, from.green + (to.green - from.green) * share,
            from.blue + (to.blue - from.blue) * share};
}

Tint scaled(Tint tint, double factor) {
    return {tint.red * factor, tint.green * factor, tint.blue * factor};
}

Colour to_colour(Tint tint) {
    const auto channel = [](double value) {
        return static_cast<std::uint8_t>(std::clamp(value, 0.0, 255.0));
    };
    return {channel(tint.red), channel(tint.green), channel(tint.blue)};
}

constexpr Tint shallow = {136, 176, 196};
constexpr Tint deep = {44, 82, 122};
constexpr Tint water = {74, 124, 168};
constexpr Tint shore = {58, 54, 52};
constexpr Tint sand = {222, 198, 142};
constexpr Tint steppe = {178, 170, 104};
constexpr Tint meadow = {112, 146, 78};
constexpr Tint jungle = {62, 108, 58};
constexpr Tint taiga = {88, 112, 84};
constexpr Tint tundra = {168, 166, 144};
constexpr Tint rock = {138, 120, 98};
constexpr Tint snow = {240, 243, 247};

Tint land_tint(double height, double moisture, double latitude) {
    const double warm = warmth(latitude, height);
    const Tint lush = mix(taiga, mix(meadow, jungle, smooth_step(0.75, 0.95, warm)),
                          smooth_step(0.35, 0.55, warm));
    Tint tint = mix(sand, steppe, smooth_step(0.2, 0.38, moisture));
    tint = mix(tint, lush, smooth_step(0.36, 0.62, moisture));
    tint = mix(tundra, tint, smooth_step(0.17, 0.33, warm));
    tint = mix(tint, rock, smooth_step(0.2, 0.5, height));
    return mix(tint, snow,
               std::max(smooth_step(0.62, 0.85, height), 1 - smooth_step(0.03, 0.2, warm)));
}

/// Returns the colour of a hue (0 to 1), saturation and brightness (0 to 1).
Tint of_hue(double hue, double saturation, double brightness) {
    const auto channel = [&](double shift) {
        const double place = (hue + shift - std::floor(hue + shift)) * 6;
        const double share = std::clamp(std::abs(place - 3) - 1, 0.0, 1.0);
        return 255 * brightness * (1 - saturation * (1 - share));
    };
    return {channel(0), channel(2.0 / 3), channel(1.0 / 3)};
}

constexpr std::uint8_t open_sea = 0; // and its border, as for everything that has one
constexpr std::uint8_t river = 2;
constexpr std::uint8_t coastline = 3;
constexpr std::uint8_t unclaimed = 4;
constexpr std::uint8_t first_nation = 6;

} // namespace

Colour identification_colour(int province) {
    std::array<std::uint8_t, 3> channels{};
    for (unsigned bit = 0; bit < 12; ++bit) {
        if ((static_cast<unsigned>(province) >> bit & 1U) != 0)
            channels[bit % 3] |= static_cast<std::uint8_t>(0x80U >> (bit / 3));
    }
    return {channels[0], channels[1], channels[2]};
}

Colour relief_colour(Ground ground, double height, double moisture, double latitude, double light,
                     Border border) {
    Tint tint = water;
    if (ground == Ground::sea) {
        tint = mix(shallow, deep, smooth_step(0.0, 0.9, std::sqrt(std::max(-height, 0.0))));
        tint =
            mix(tint, snow, 0.75 * smooth_step(70, 76, std::abs(latitude) + 14 * (moisture - 0.5)));
        tint = border == Border::coast ? mix(tint, shore, 0.6)
                                       : scaled(tint, border == Border::none ? 1.0 : 0.91);
    } else if (ground == Ground::land) {
        tint = scaled(land_tint(std::max(height, 0.0), moisture, latitude), 0.55 + 0.9 * light);
        if (border == Border::coast)
            tint = mix(tint, shore, 0.75);
        else if (border != Border::none)
            tint = scaled(tint, 0.7);
    }
    return to_colour(tint);
}

PoliticalColours::PoliticalColours(const World& world)
    : palette(first_nation), fill(world.provinces.size(), open_sea) {
    palette[open_sea] = {176, 202, 222};
    palette[open_sea + 1] = {150, 180, 206};
    palette[river] = {110, 156, 196};
    palette[coastline] = {52, 50, 54};
    palette[unclaimed] = {226, 218, 196};
    palette[unclaimed + 1] = {196, 186, 160};

    std::map<std::pair<std::size_t, int>, std::uint8_t> known;
    for (std::size_t id = 1; id < world.provinces.size(); ++id) {
        const Province& province = world.provinces[id];
        if (province.ground == Ground::river)
            fill[id] = river;
        if (province.ground != Ground::land)
            continue;
        if (regions()[province.region].religions.starts_with("exotic")) {
            fill[id] = unclaimed;
            continue;
        }
        const bool united = mixed(province.region) % 5 < 2;
        const auto [nation, is_new] =
            known.try_emplace({province.region, united ? 0 : province.culture},
                              static_cast<std::uint8_t>(palette.size()));
        fill[id] = nation->second;
        if (!is_new)
            continue;
        const int number = static_cast<int>(known.size());
        const Tint tint = of_hue(0.13 + number * 0.61803398875, 0.34 + 0.09 * (number % 4),
                                 0.92 - 0.09 * (number % 3));
        palette.push_back(to_colour(tint));
        palette.push_back(to_colour(scaled(tint, 0.8)));
    }
}

std::uint8_t PoliticalColours::index(int province, Border border) const {
    const std::uint8_t plain = fill[static_cast<std::size_t>(province)];
    switch (plain == river ? Border::none : border) {
    case Border::none:
        return plain;
    case Border::province:
        return static_cast<std::uint8_t>(plain + 1);
    default:
        return coastline;
    }
}

} // namespace sample
