#pragma once

#include "editor/selection.h"
#include "map/bitmap_file.h"
#include "map/identification.h"

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

/// Which points of a grid over the map lie in selected provinces.
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

    /// Returns the first point, row by row, with an identifier above 2018, if there is one.
    const std::optional<ForeignPoint>& foreign_point() const { return foreign_point_; }

  private:
    int columns_ = 0;
    int rows_ = 0;
    std::vector<char> dots_;
    std::optional<ForeignPoint> foreign_point_;
};

} // namespace map
