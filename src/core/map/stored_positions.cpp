#include "map/stored_positions.h"

#include "data/numbers.h"
#include "map/position_columns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace map {

namespace {

/// The pairs that stand for no position, both coordinates alike. Any other number may be one: with
/// a negative map offset the stored numbers are negative, too.
constexpr std::array none = {-1.0, -100.0};

bool is_none(double x, double y) {
    return x == y && std::find(none.begin(), none.end(), x) != none.end();
}

/// Nothing lies farther out: no surface is larger, and a whole number of pixels stays exact.
constexpr double farthest = 1 << 24;

std::optional<StoredPosition> position(const data::ProvinceTable& provinces,
                                       const PositionColumns& columns, const Maps& maps,
                                       int province) {
    const std::string& x_cell = provinces.cell(province, data::table_column(columns.x));
    const std::string& y_cell = provinces.cell(province, data::table_column(columns.y));
    if (x_cell.empty() || y_cell.empty())
        return {};
    const double x = data::leading_number(x_cell);
    const double y = data::leading_number(y_cell);
    if (is_none(x, y))
        return {};
    const StoredPosition on_map{province, columns.drawing, x - maps.x_offset, y - maps.y_offset};
    if (!(std::abs(on_map.x) <= farthest && std::abs(on_map.y) <= farthest))
        return {};
    return on_map;
}

bool contains(const Area& area, const StoredPosition& position) {
    return position.x >= area.left && position.x < area.right && position.y >= area.top &&
           position.y < area.bottom;
}

} // namespace

std::vector<StoredPosition> positions_of(const data::ProvinceTable& provinces, Mode mode,
                                         const Maps& maps, int province) {
    std::vector<StoredPosition> found;
    for (const auto& columns : position_columns) {
        if (columns.mode != mode)
            continue;
        if (const auto stored = position(provinces, columns, maps, province))
            found.push_back(*stored);
    }
    return found;
}

std::vector<StoredPosition> positions_in(const data::ProvinceTable& provinces, Mode mode,
                                         const Maps& maps, const Area& area) {
    std::vector<StoredPosition> found;
    for (const auto& columns : position_columns) {
        if (columns.mode != mode)
            continue;
        for (int province = 1; province <= data::last_province; ++province) {
            const auto stored = position(provinces, columns, maps, province);
            if (stored && contains(area, *stored))
                found.push_back(*stored);
        }
    }
    return found;
}

} // namespace map
