#include "canvas.h"

#include <algorithm>
#include <cstdlib>

namespace sample {

Colour shaded(Colour colour, double factor) {
    const auto channel = [factor](std::uint8_t value) {
        return static_cast<std::uint8_t>(std::clamp(value * factor, 0.0, 255.0));
    };
    return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

void Canvas::dot(int x, int y, Colour colour) {
    if (x >= 0 && y >= 0 && x < size().width && y < size().height)
        pixels_[y * size().width + x] = colour;
}

Colour Canvas::at(int x, int y) const {
    const bool inside = x >= 0 && y >= 0 && x < size().width && y < size().height;
    return inside ? pixels_[y * size().width + x] : background;
}

void Canvas::box(int x, int y, int width, int height, Colour colour) {
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column)
            dot(column, row, colour);
    }
}

void Canvas::line(int x, int y, int to_x, int to_y, Colour colour) {
    const int steps = std::max({std::abs(to_x - x), std::abs(to_y - y), 1});
    for (int step = 0; step <= steps; ++step)
        dot(x + (2 * (to_x - x) * step + steps) / (2 * steps),
            y + (2 * (to_y - y) * step + steps) / (2 * steps), colour);
}

void Canvas::ball(int x, int y, int radius_x, int radius_y, Colour colour) {
    for (int dy = -radius_y; dy <= radius_y; ++dy) {
        for (int dx = -radius_x; dx <= radius_x; ++dx) {
            const double across = dx / (radius_x + 0.4);
            const double down = dy / (radius_y + 0.4);
            if (across * across + down * down > 1)
                continue;
            const double from_light = across + down;
            dot(x + dx, y + dy,
                shaded(colour, from_light < -0.5   ? 1.25
                               : from_light > 0.45 ? 0.72
                                                   : 1.0));
        }
    }
}

void Canvas::peak(int x, int top_y, int base_y, int half_width, Colour colour) {
    const int height = std::max(base_y - top_y, 1);
    for (int y = top_y; y <= base_y; ++y) {
        const int reach = half_width * (y - top_y) / height;
        for (int dx = -reach; dx <= reach; ++dx)
            dot(x + dx, y, shaded(colour, dx <= -reach / 3 ? 1.15 : 0.75));
    }
}

Canvas Canvas::outlined(Colour colour) const {
    Canvas result = *this;
    for (int y = 0; y < size().height; ++y) {
        for (int x = 0; x < size().width; ++x) {
            const bool beside = at(x - 1, y) != background || at(x + 1, y) != background ||
                                at(x, y - 1) != background || at(x, y + 1) != background;
            const bool is_first = x == 0 && y == 0; // it tells what is transparent
            if (beside && !is_first && at(x, y) == background)
                result.dot(x, y, colour);
        }
    }
    return result;
}

} // namespace sample
