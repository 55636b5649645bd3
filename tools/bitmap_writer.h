#pragma once

#include "grid.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>

namespace sample {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    friend bool operator==(Colour, Colour) = default;
};

/// Writes an uncompressed bitmap file row by row, so that a map of any size needs no memory.
class BitmapWriter {
  public:
    /// Opens the file and writes its header: 24 bits per pixel, or 8 with a palette of up to 256
    /// colours. Throws std::ios_base::failure, as the other functions do.
    BitmapWriter(const std::filesystem::path& path, Size pixels,
                 std::span<const Colour> palette = {});

    /// Returns the bytes of a row in the file: pixels, then zeros up to a multiple of four.
    std::size_t row_bytes() const { return row_bytes_; }

    /// Appends whole rows; the bottom row of the picture comes first.
    void write_rows(std::span<const std::uint8_t> bytes);

    void close() { file_.close(); }

  private:
    std::size_t row_bytes_;
    std::ofstream file_;
};

/// Stores the colour as a 24-bit pixel.
inline void put_pixel(std::uint8_t* pixel, Colour colour) {
    pixel[0] = colour.blue;
    pixel[1] = colour.green;
    pixel[2] = colour.red;
}

} // namespace sample
