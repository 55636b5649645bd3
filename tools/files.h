#pragma once

#include "grid.h"

#include <filesystem>
#include <span>
#include <string_view>

namespace sample {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(Colour, Colour) = default;
};

/// Gives the file these bytes. Throws std::runtime_error, as the other functions do, when the file
/// cannot be written.
void write_file(const std::filesystem::path& path, std::string_view bytes);

/// Writes a 24-bit bitmap of that many pixels, to which the picture is enlarged.
void write_bitmap(const std::filesystem::path& path, const Grid<Colour>& picture, Size pixels);

/// Writes an 8-bit bitmap; the picture holds indices of the palette, which has up to 256 colours.
void write_bitmap(const std::filesystem::path& path, const Grid<std::uint8_t>& picture, Size pixels,
                  std::span<const Colour> palette);

} // namespace sample
