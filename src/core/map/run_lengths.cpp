#include "map/run_lengths.h"

#include "map/bitmap_header.h"
#include "map/image_error.h"
#include "map/little_endian.h"

#include <algorithm>
#include <cstdint>

namespace map {

namespace {

/// What the second byte means when the first one is 0; from 3 on it counts pixels that follow.
enum Escape : std::uint32_t { end_of_row = 0, end_of_bitmap = 1, jump = 2 };

/// Returns the row, counted from 0 in the file's order, in which the pixels end too early; the
/// height when they do not.
std::int64_t row_of_end(std::span<const char> pixels, const BitmapHeader& header) {
    const std::size_t pixels_per_byte = header.compression == Compression::runs_4 ? 2 : 1;
    std::int64_t row = 0;
    std::int64_t column = 0;
    while (row < header.height && pixels.size() >= 2) {
        const auto count = byte_at(pixels, 0);
        const auto second = byte_at(pixels, 1);
        std::size_t size = 2;
        if (count > 0) {
            column += count;
        } else if (second == end_of_row) {
            ++row;
            column = 0;
        } else if (second == end_of_bitmap) {
            return header.height;
        } else if (second == jump) {
            if (pixels.size() < 4)
                return row;
            column += byte_at(pixels, 2);
            row += byte_at(pixels, 3);
            size = 4;
        } else {
            size += (second + pixels_per_byte - 1) / pixels_per_byte;
            if (pixels.size() < size)
                return row;
            column += second;
            size += size % 2; // padding, which may be missing at the file's end
        }
        pixels = pixels.subspan(std::min(size, pixels.size()));
    }
    const bool last_is_full = row == header.height - 1 && column >= header.width;
    return last_is_full ? header.height : std::min<std::int64_t>(row, header.height);
}

} // namespace

void check_run_lengths(std::span<const char> file) {
    if (!is_bitmap(file))
        return;
    const BitmapHeader header = read_bitmap_header(file);
    if (header.compression != Compression::runs_8 && header.compression != Compression::runs_4)
        return;
    const auto begin = std::min<std::uint64_t>(header.pixels_begin, file.size());
    const auto row = row_of_end(file.subspan(static_cast<std::size_t>(begin)), header);
    if (row < header.height)
        throw image_error(data::Text::reason_runs_end, row + 1, header.height);
}

} // namespace map
