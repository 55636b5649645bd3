#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Bitmap files whose pixels lie in the file as they are, so that any part can be read alone.
namespace map {

/// A pixel as 0xFFRRGGBB; without the FF it is none.
using Pixel = std::uint32_t;
inline constexpr Pixel no_pixel = 0;

/// Where one colour channel lies within a pixel of 16 or 32 bits.
struct Channel {
    unsigned shift = 0;
    unsigned bits = 0; // 1 to 32
};

/// How the pixels lie in the file.
struct BitmapLayout {
    int width = 0; // pixels
    int height = 0;
    unsigned bits_per_pixel = 0; // 1, 4, 8, 16, 24 or 32
    bool top_down = false;
    std::uint64_t pixels_begin = 0;       // byte of the file
    std::uint64_t bytes_per_row = 0;      // rows are padded to whole groups of four bytes
    std::vector<Pixel> palette;           // for 1, 4 and 8 bits: a pixel for every possible value
    std::array<Channel, 3> channels = {}; // for 16 and 32 bits: red, green, blue
};

/// A file's first bytes, as many as a header with its palette can take.
inline constexpr std::size_t bitmap_head_size = 1280;

/// Reads the layout from the file's first bytes (bitmap_head_size of them, or the whole of a
/// shorter file). Returns nothing for a file that is no bitmap or is a compressed one. Throws
/// path/file access error with what is wrong, for sizes that are none and for pixels that the file
/// lacks.
std::optional<BitmapLayout> read_bitmap_layout(std::string_view head, std::uint64_t file_size);

/// A stretch of the file.
struct FilePart {
    std::uint64_t begin;
    std::size_t size; // bytes
};

/// Returns where the pixels first_x to last_x of row y lie; all must be inside the bitmap.
FilePart part_of_row(const BitmapLayout& layout, int y, int first_x, int last_x);

/// Fills `pixels` with the pixels first_x, first_x + step, and so on. `bytes` is the file's part
/// that begins at pixel first_x and reaches to the last one that is asked for.
void decode_pixels(const BitmapLayout& layout, std::span<const char> bytes, int first_x, int step,
                   std::span<Pixel> pixels);

} // namespace map
