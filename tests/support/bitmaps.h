#pragma once

#include "map/identification.h"

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>

/// Small bitmap files for the tests of the map.
namespace bitmaps {

inline std::string number(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i, value >>= 8)
        text += static_cast<char>(value & 0xFF);
    return text;
}

struct Format {
    int width = 0;
    int height = 0; // negative: top-down
    int bits_per_pixel = 24;
    std::string masks = {};
    std::size_t palette = 0; // entries
    bool is_old = false;     // with the oldest header, of 12 bytes

    std::size_t bytes_per_row() const {
        const auto bits =
            static_cast<std::size_t>(width) * static_cast<std::size_t>(bits_per_pixel);
        return (bits + 31) / 32 * 4;
    }
};

/// Returns the bitmap's header and palette; the palette is made of noise.
inline std::string header(const Format& format) {
    std::string palette;
    std::mt19937 random(7);
    for (std::size_t i = 0; i < format.palette; ++i)
        palette += number(random() & 0xFFFFFF, format.is_old ? 3 : 4);
    if (format.is_old)
        return "BM" + number(0, 8) + number(26 + palette.size(), 4) + number(12, 4) +
               number(static_cast<std::uint64_t>(format.width), 2) +
               number(static_cast<std::uint64_t>(format.height), 2) + number(1, 2) +
               number(static_cast<std::uint64_t>(format.bits_per_pixel), 2) + palette;
    const std::size_t begin = 54 + format.masks.size() + palette.size();
    return "BM" + number(0, 8) + number(begin, 4) + number(40, 4) +
           number(static_cast<std::uint32_t>(format.width), 4) +
           number(static_cast<std::uint32_t>(format.height), 4) + number(1, 2) +
           number(static_cast<std::uint32_t>(format.bits_per_pixel), 2) +
           number(format.masks.empty() ? 0 : 3, 4) + number(0, 12) + number(format.palette, 4) +
           number(0, 4) + format.masks + palette;
}

/// Returns a bitmap whose pixels are noise.
inline std::string noise(const Format& format) {
    std::string bytes = header(format);
    std::mt19937 random(3);
    const auto rows = static_cast<std::size_t>(std::abs(format.height));
    for (std::size_t i = 0; i < rows * format.bytes_per_row(); ++i)
        bytes += static_cast<char>(random() & 0xFF);
    return bytes;
}

/// Returns a 24-bit bitmap with the colour of every point.
inline std::string painted(int width, int height,
                           const std::function<map::Colour(int x, int y)>& colour) {
    const Format format{width, -height};
    std::string bytes = header(format);
    for (int y = 0; y < height; ++y) {
        std::string row;
        for (int x = 0; x < width; ++x)
            row += number(colour(x, y), 3);
        row.resize(format.bytes_per_row());
        bytes += row;
    }
    return bytes;
}

/// Returns the colour with low bits of zero that stands for the identifier.
inline map::Colour colour_of(int identifier) {
    map::Colour colour = 0;
    for (unsigned bit = 0; bit < 12; ++bit) {
        const auto set = static_cast<map::Colour>(identifier) >> bit & 1;
        colour |= set << (16 - 8 * (bit % 3)) << (7 - bit / 3);
    }
    return colour;
}

} // namespace bitmaps
