#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace sample {

struct Size {
    int width = 0;
    int height = 0;
};

struct Point {
    double x = 0;
    double y = 0;
};

inline double distance_squared(Point a, Point b) {
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

/// Divides a line into `from` equal parts and into `to` others: returns the index of the one of the
/// `to` parts in which the middle of part `index` of the `from` parts lies.
inline int at_same_place(int index, int from, int to) {
    return static_cast<int>((2LL * index + 1) * to / (2LL * from));
}

/// Values of the cells of a rectangle, row by row. A cell is named by its index in `values`.
template <class Value>
struct Grid {
    explicit Grid(Size cells, Value value = {})
        : size(cells),
          values(static_cast<std::size_t>(cells.width) * static_cast<std::size_t>(cells.height),
                 value) {}

    int cells() const { return static_cast<int>(values.size()); }
    int column(int cell) const { return cell % size.width; }
    int row(int cell) const { return cell / size.width; }

    Value& operator[](int cell) { return values[static_cast<std::size_t>(cell)]; }
    const Value& operator[](int cell) const { return values[static_cast<std::size_t>(cell)]; }

    /// Returns the value of the cell, or of the nearest one when it lies outside.
    const Value& near(int column, int row) const {
        return (*this)[std::clamp(row, 0, size.height - 1) * size.width +
                       std::clamp(column, 0, size.width - 1)];
    }

    Size size;
    std::vector<Value> values;
};

/// Calls `visit` with the cell above, left, right and below, as far as they exist.
template <class Visit>
void for_neighbours(Size size, int cell, Visit visit) {
    const int column = cell % size.width;
    if (cell >= size.width)
        visit(cell - size.width);
    if (column > 0)
        visit(cell - 1);
    if (column + 1 < size.width)
        visit(cell + 1);
    if (cell + size.width < size.width * size.height)
        visit(cell + size.width);
}

} // namespace sample
