#include "noise.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sample {

namespace {

struct Gradient {
    double x;
    double y;
};

constexpr double diagonal = 0.70710678118654752;
constexpr std::array<Gradient, 8> gradients = {{{1, 0},
                                                {-1, 0},
                                                {0, 1},
                                                {0, -1},
                                                {diagonal, diagonal},
                                                {-diagonal, diagonal},
                                                {diagonal, -diagonal},
                                                {-diagonal, -diagonal}}};

/// Returns the slope of the lattice point's gradient at an offset from the point.
double slope(int x, int y, std::uint32_t seed, double dx, double dy) {
    std::uint32_t hash = seed + static_cast<std::uint32_t>(x) * 0x9E3779B1U +
                         static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    hash = (hash ^ (hash >> 15U)) * 0x2C1B3C6DU;
    hash = (hash ^ (hash >> 12U)) * 0x297A2D39U;
    const Gradient& gradient = gradients[hash >> 29U];
    return gradient.x * dx + gradient.y * dy;
}

double fade(double t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

double mix(double from, double to, double share) {
    return from + (to - from) * share;
}

} // namespace

double noise(double x, double y, std::uint32_t seed) {
    const double left = std::floor(x);
    const double top = std::floor(y);
    const int column = static_cast<int>(left);
    const int row = static_cast<int>(top);
    const double dx = x - left;
    const double dy = y - top;
    const double across = fade(dx);
    const double above =
        mix(slope(column, row, seed, dx, dy), slope(column + 1, row, seed, dx - 1, dy), across);
    const double below = mix(slope(column, row + 1, seed, dx, dy - 1),
                             slope(column + 1, row + 1, seed, dx - 1, dy - 1), across);
    return mix(above, below, fade(dy)) * 1.5;
}

double fractal(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0;
    double height = 0.5;
    for (int octave = 0; octave < octaves; ++octave, height /= 2) {
        sum += height * noise(x, y, seed + static_cast<std::uint32_t>(octave));
        x = x * 2 + 17.3; // shifted, so that the lattices of two octaves never coincide
        y = y * 2 + 5.7;
    }
    return sum;
}

double ridges(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0;
    double height = 0.5;
    for (int octave = 0; octave < octaves; ++octave, height /= 2) {
        const double crest = 1 - std::abs(noise(x, y, seed + static_cast<std::uint32_t>(octave)));
        sum += height * crest * crest;
        x = x * 2 + 17.3;
        y = y * 2 + 5.7;
    }
    return std::clamp(sum, 0.0, 1.0);
}

double smooth_step(double low, double high, double value) {
    const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

} // namespace sample
