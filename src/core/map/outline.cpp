#include "map/outline.h"

#include "map/identification.h"

#include <algorithm>
#include <iterator>

namespace map {

namespace {

/// Where a row enters and leaves the province, in turn: the left edges of pixels.
using Crossings = std::vector<int>;

Crossings crossings_of(int identifier, int first_x, std::span<const Pixel> pixels) {
    Crossings crossings;
    bool inside = false;
    Pixel last = no_pixel;
    int x = first_x;
    for (const Pixel pixel : pixels) {
        if (pixel != last) {
            last = pixel;
            const bool is_inside = pixel != no_pixel && province_of(pixel) == identifier;
            if (is_inside != inside)
                crossings.push_back(x);
            inside = is_inside;
        }
        ++x;
    }
    if (inside)
        crossings.push_back(x);
    return crossings;
}

/// Adds the lines between two rows: where one of them is inside the province and the other is not.
void add_lines_between(const Crossings& above, const Crossings& below, int y,
                       std::vector<BorderLine>& lines) {
    Crossings differing;
    std::set_symmetric_difference(above.begin(), above.end(), below.begin(), below.end(),
                                  std::back_inserter(differing));
    for (std::size_t i = 0; i + 1 < differing.size(); i += 2)
        lines.push_back({differing[i], y, differing[i + 1], y});
}

std::vector<BorderLine> border_of(const Box& box) {
    const int right = box.right + 1;
    const int bottom = box.bottom + 1;
    return {{box.left, box.top, right, box.top},
            {box.left, bottom, right, bottom},
            {box.left, box.top, box.left, bottom},
            {right, box.top, right, bottom}};
}

} // namespace

std::vector<BorderLine> outline_of(int identifier, const Box& box, std::size_t most_lines,
                                   const ReadRow& read_row) {
    std::vector<BorderLine> lines;
    std::vector<Pixel> pixels(static_cast<std::size_t>(box.right - box.left + 1));
    Crossings above;
    for (int y = box.top; y <= box.bottom; ++y) {
        read_row(y, box.left, 1, pixels);
        Crossings here = crossings_of(identifier, box.left, pixels);
        add_lines_between(above, here, y, lines);
        for (const int x : here)
            lines.push_back({x, y, x, y + 1});
        if (lines.size() > most_lines)
            return border_of(box);
        above = std::move(here);
    }
    add_lines_between(above, {}, box.bottom + 1, lines);
    return lines;
}

} // namespace map
