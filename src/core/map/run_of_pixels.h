#pragma once

#include "map/bitmap_file.h"

#include <cstddef>
#include <span>

namespace map {

/// Returns where the run of equal pixels that begins at `begin` ends. Whole blocks are compared at
/// once: the map has a hundred million pixels, and nearly all are like the one before.
inline std::size_t end_of_run(std::span<const Pixel> pixels, std::size_t begin) {
    constexpr std::size_t block = 16;
    const Pixel colour = pixels[begin];
    std::size_t end = begin + 1;
    for (; end + block <= pixels.size(); end += block) {
        Pixel differing = 0;
        for (std::size_t at = 0; at < block; ++at)
            differing |= pixels[end + at] ^ colour;
        if (differing != 0)
            break;
    }
    while (end < pixels.size() && pixels[end] == colour)
        ++end;
    return end;
}

} // namespace map
