#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace map {

/// How the pixels of a bitmap file are packed.
enum class Compression : std::uint32_t { none = 0, runs_8 = 1, runs_4 = 2, bit_fields = 3 };

/// The values of a bitmap file's header, whichever of its forms the file has.
struct BitmapHeader {
    std::size_t size = 0; // bytes, without the 14 of the file's own header
    int width = 0;        // pixels, at least 1
    int height = 0;
    bool top_down = false; // the top row comes first
    unsigned bits_per_pixel = 0;
    Compression compression = Compression::none; // may be a number that has no name here
    std::uint32_t colours = 0;                   // 0: as many as the bits per pixel allow
    std::size_t masks_begin = 0;                 // byte of the file
    std::size_t palette_begin = 0;
    std::size_t palette_step = 0; // bytes of an entry
    std::uint64_t pixels_begin = 0;
};

/// Returns whether the file's first bytes say that it is a bitmap.
bool is_bitmap(std::span<const char> head);

/// Reads the header from a bitmap's first bytes. Throws path/file access error with what is wrong
/// for a header that is cut short or of an unknown size, and for a bitmap without pixels.
BitmapHeader read_bitmap_header(std::span<const char> head);

} // namespace map
