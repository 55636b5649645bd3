#pragma once

#include <algorithm>
#include <optional>

namespace map {

/// A box of pixels of the map, its edges inside.
struct Box {
    int left;
    int top;
    int right;
    int bottom;
    friend bool operator==(const Box&, const Box&) = default;
};

/// Returns the smallest box that holds both.
constexpr Box united(const Box& one, const Box& other) {
    return {std::min(one.left, other.left), std::min(one.top, other.top),
            std::max(one.right, other.right), std::max(one.bottom, other.bottom)};
}

/// Returns what lies in both; nothing when they do not meet.
constexpr std::optional<Box> common(const Box& one, const Box& other) {
    const Box both{std::max(one.left, other.left), std::max(one.top, other.top),
                   std::min(one.right, other.right), std::min(one.bottom, other.bottom)};
    if (both.left > both.right || both.top > both.bottom)
        return {};
    return both;
}

/// Returns whether the pixel lies in the box.
constexpr bool contains(const Box& box, int x, int y) {
    return x >= box.left && x <= box.right && y >= box.top && y <= box.bottom;
}

} // namespace map
