#pragma once

#include "editor/selection.h"
#include "map/bitmap_file.h"
#include "map/box.h"
#include "map/identification.h"
#include "map/province_index.h"

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace map {

/// Distance of the grid's points, in pixels; point (column, row) lies at their multiples.
inline constexpr int dot_spacing = 20;

/// Fills the pixels with the ID map's colours at x = 0, dot_spacing, ... of row y (pixels).
using ReadGridRow = std::function<void(int y, std::span<Pixel> pixels)>;

/// A point of the grid whose colour stands for an identifier that no province has.
struct ForeignPoint {
    int x; // pixels
    int y;
    Colour colour;
    int identifier;
};

/// A pixel of the map.
struct Point {
    int x;
    int y;
};

/// Which points of a grid over the map lie in selected provinces, and a point of its own for each
/// selected province that the grid misses.
class SelectionDots {
  public:
    /// No grid at all.
    SelectionDots() = default;

    /// Looks the selection up at every point of the grid over a map of the given size in pixels.
    SelectionDots(int width, int height, const editor::Selection& selection,
                  const ReadGridRow& read_row);

    int columns() const { return columns_; }
    int rows() const { return rows_; }

    /// Returns whether the point has a dot; it must be inside the grid.
    bool has_dot(int column, int row) const;

    /// Returns the smallest part of the grid (columns and rows) that holds all points with a dot;
    /// nothing when there is none.
    const std::optional<Box>& dotted_part() const { return dotted_part_; }

    /// Gives each selected province that no point of the grid meets a dot at its inner pixel.
    void add_missed(const ProvinceIndex& index);

    /// Returns the dots beside the grid.
    std::span<const Point> single_dots() const { return single_dots_; }

    /// Returns the first point, row by row, with an identifier above 2018, if there is one.
    const std::optional<ForeignPoint>& foreign_point() const { return foreign_point_; }

  private:
    void widen_dotted_part(int row);

    int columns_ = 0;
    int rows_ = 0;
    std::vector<char> dots_;
    std::optional<Box> dotted_part_;
    std::vector<int> missed_; // selected provinces
    std::vector<Point> single_dots_;
    std::optional<ForeignPoint> foreign_point_;
};

} // namespace map
