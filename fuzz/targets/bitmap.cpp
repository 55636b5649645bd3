#include "map/bitmap_file.h"
#include "map/run_lengths.h"
#include "targets.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

/// Returns the pixels first_x, first_x + step and so on of the row, decoded from bytes that end
/// where the row's part does.
std::vector<map::Pixel> pixels_of(const map::BitmapLayout& layout, std::string_view file, int y,
                                  int first_x, int step, int count) {
    const auto part = map::part_of_row(layout, y, first_x, first_x + step * (count - 1));
    assert(part.begin >= layout.pixels_begin && part.begin <= file.size());
    assert(part.size <= file.size() - part.begin);
    const auto stored = file.substr(part.begin, part.size);
    const std::vector<char> bytes(stored.begin(), stored.end());
    std::vector<map::Pixel> pixels(static_cast<std::size_t>(count));
    map::decode_pixels(layout, bytes, first_x, step, pixels);
    return pixels;
}

void check_row(const map::BitmapLayout& layout, std::string_view file, int y, int first_x,
               int step) {
    const int count = std::min((layout.width - first_x - 1) / step + 1, 20);
    int x = first_x;
    for (const auto pixel : pixels_of(layout, file, y, first_x, step, count)) {
        assert(pixel >> 24 == 0xFF);
        assert(pixel == pixels_of(layout, file, y, x, 1, 1).front());
        x += step;
    }
}

} // namespace

void fuzz::bitmap(std::string_view bytes) {
    accepts([&] { map::check_run_lengths(bytes); });

    const auto head = bytes.substr(0, map::bitmap_head_size);
    accepts([&] { map::read_bitmap_layout(head, std::numeric_limits<std::uint64_t>::max()); });
    std::optional<map::BitmapLayout> layout;
    accepts([&] { layout = map::read_bitmap_layout(head, bytes.size()); });
    if (!layout)
        return;
    for (const int y : {0, layout->height / 2, layout->height - 1}) {
        for (const int first_x : {0, layout->width / 2, layout->width - 1}) {
            check_row(*layout, bytes, y, first_x, 1);
            check_row(*layout, bytes, y, first_x, 3);
        }
    }
}
