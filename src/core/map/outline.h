#pragma once

#include "map/box.h"
#include "map/read_row.h"

#include <vector>

namespace map {

/// A stretch of a province's border: a horizontal or vertical line between pixels. (x, y) is the
/// upper left corner of the pixel (x, y).
struct BorderLine {
    int from_x;
    int from_y;
    int to_x; // not less than from_x
    int to_y; // not less than from_y
    friend bool operator==(const BorderLine&, const BorderLine&) = default;
};

/// Returns the border of the province, holes and parts included, that lies in the box. Where it
/// would take more lines than `most_lines`, the border of the box stands for it.
std::vector<BorderLine> outline_of(int identifier, const Box& box, std::size_t most_lines,
                                   const ReadRow& read_row);

} // namespace map
