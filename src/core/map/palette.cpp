#include "map/palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace map {

namespace {

/// A colour as it is seen: lightness 0 to 100, and two axes, green to red and blue to yellow.
struct Seen {
    double lightness;
    double red;
    double yellow;
};

using Light = std::array<double, 3>; // red, green, blue, 0 to 1, as amounts of light

Light light_of(const Seen& seen) {
    const double y = (seen.lightness + 16) / 116;
    const auto amount = [](double root) {
        constexpr double bend = 6.0 / 29;
        return root > bend ? root * root * root : 3 * bend * bend * (root - 4.0 / 29);
    };
    const double cie_x = 0.95047 * amount(y + seen.red / 500);
    const double cie_y = amount(y);
    const double cie_z = 1.08883 * amount(y - seen.yellow / 200);
    return {3.2406 * cie_x - 1.5372 * cie_y - 0.4986 * cie_z,
            -0.9689 * cie_x + 1.8758 * cie_y + 0.0415 * cie_z,
            0.0557 * cie_x - 0.2040 * cie_y + 1.0570 * cie_z};
}

bool can_be_shown(const Light& light) {
    return std::all_of(light.begin(), light.end(),
                       [](double amount) { return amount >= -0.001 && amount <= 1.001; });
}

Pixel pixel_of(const Light& light) {
    Pixel pixel = 0xFF;
    for (const double amount : light) {
        const double inside = std::clamp(amount, 0.0, 1.0);
        const double shown =
            inside <= 0.0031308 ? 12.92 * inside : 1.055 * std::pow(inside, 1 / 2.4) - 0.055;
        pixel = pixel << 8 | static_cast<Pixel>(std::lround(255 * shown));
    }
    return pixel;
}

} // namespace

Pixel code_colour(std::size_t index) {
    // Twelve hues, each 150 degrees from the one before; every further twelve lie between them.
    constexpr std::size_t hues = 12;
    constexpr std::array<double, 4> lightness = {86, 40, 70, 54};
    constexpr std::array<double, 3> lightness_of_round = {0, -6, 4};
    const std::size_t round = index / hues;
    const double degrees =
        60 + 150 * static_cast<double>(index) + 11.1 * static_cast<double>(round);
    const double hue = degrees * std::numbers::pi / 180;
    const double light =
        lightness[index % lightness.size()] + lightness_of_round[round % lightness_of_round.size()];
    Light found = {};
    double strength = 71; // as colourful as a screen can show it
    do {
        --strength;
        found = light_of({light, strength * std::cos(hue), strength * std::sin(hue)});
    } while (!can_be_shown(found) && strength > 0);
    return pixel_of(found);
}

Pixel scale_colour(double place) {
    constexpr std::array<Seen, 3> stops = {{{93, -4, 38}, {62, -22, -8}, {27, 20, -50}}};
    const double at = std::clamp(place, 0.0, 1.0) * (stops.size() - 1);
    const auto first = std::min(static_cast<std::size_t>(at), stops.size() - 2);
    const double part = at - static_cast<double>(first);
    const auto between = [&](double Seen::*axis) {
        return std::lerp(stops[first].*axis, stops[first + 1].*axis, part);
    };
    return pixel_of(
        light_of({between(&Seen::lightness), between(&Seen::red), between(&Seen::yellow)}));
}

} // namespace map
