#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace map {

/// How large the map is shown: 1/32 to 8 times its own size, in powers of two. What is shown has
/// coordinates of its own, in shown pixels; here they become pixels of the map and the other way
/// round.
class ZoomLevel {
  public:
    static constexpr int smallest = -5; // powers of two
    static constexpr int largest = 3;

    /// Level 1: a pixel of the map is a shown pixel.
    constexpr ZoomLevel() = default;

    /// The level of two to the power, or the nearest one that there is.
    constexpr explicit ZoomLevel(int power) : power_(std::clamp(power, smallest, largest)) {}

    constexpr int power() const { return power_; }
    constexpr bool is_largest() const { return power_ == largest; }
    constexpr bool is_smallest() const { return power_ == smallest; }

    /// Returns how many shown pixels a pixel of the map is wide; 1 where it is none or just one.
    constexpr int enlargement() const { return power_ > 0 ? 1 << power_ : 1; }

    /// Returns how many pixels of the map a shown pixel is wide; 1 where it is none or just one.
    constexpr int step() const { return power_ < 0 ? 1 << -power_ : 1; }

    /// Returns the pixel of the map that the shown pixel stands for; below level 1 the first one of
    /// those that it covers. Like all that follow it takes one coordinate.
    constexpr int on_map(int shown) const {
        return power_ > 0 ? shown >> power_ : shown << -power_;
    }

    /// Returns what a pointer's coordinate (shown pixels) means on the map: at level 1 the number
    /// as it is, elsewhere the pixel under it.
    double on_map(double shown) const {
        return power_ == 0 ? shown : std::floor(std::ldexp(shown, -power_));
    }

    /// Returns the first shown pixel that shows something of the map's pixel.
    constexpr int shown(int on_map) const {
        return power_ > 0 ? on_map << power_ : on_map >> -power_;
    }

    /// Returns how many shown pixels a length (pixels of the map) takes, at most what a surface can
    /// have.
    constexpr int shown_length(int length) const {
        constexpr std::int64_t longest = (1 << 24) - 1;
        const auto scaled = (std::int64_t{length} + step() - 1) * enlargement() / step();
        return static_cast<int>(std::min(scaled, longest));
    }

    /// Returns where the shown pixel of another level is at this one.
    constexpr int from(ZoomLevel other, int shown) const {
        const int steps = power_ - other.power_;
        return steps > 0 ? shown << steps : shown >> -steps;
    }

    friend constexpr bool operator==(ZoomLevel, ZoomLevel) = default;

  private:
    int power_ = 0;
};

} // namespace map
