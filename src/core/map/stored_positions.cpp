#include "map/stored_positions.h"

#include "data/numbers.h"
#include "map/position_columns.h"

#include <cmath>
#include <optional>
#include <string>

namespace map {

namespace {

/// Returns the stored coordinate; nothing for an empty or a negative one.
std::optional<double> coordinate(const std::string& cell) {
    const double number = data::leading_number(cell);
    if (cell.empty() || number < 0)
        return {};
    return number;
}

/// Nothing lies farther out: no surface is larger, and a whole number of pixels stays exact.
constexpr double farthest = 1 << 24;

std::optional<StoredPosition> position(const data::ProvinceTable& provinces,
                                       const PositionColumns& columns, const Maps& maps,
                                       int province) {
    const auto x = coordinate(provinces.cell(province, data::table_column(columns.x)));
    const auto y = coordinate(provinces.cell(province, data::table_column(columns.y)));
    if (!x || !y)
        return {};
    const StoredPosition on_map{province, columns.drawing, *x - maps.x_offset, *y - maps.y_offset};
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
