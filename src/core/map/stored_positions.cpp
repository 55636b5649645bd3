#include "map/stored_positions.h"

#include "data/numbers.h"

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

struct Pair {
    double x;
    double y;
};

/// Returns the pair of numbers that the columns hold; nothing when it stands for no position.
std::optional<Pair> stored_pair(const data::ProvinceTable& provinces,
                                const PositionColumns& columns, int province) {
    const std::string& x_cell = provinces.cell(province, data::table_column(columns.x));
    const std::string& y_cell = provinces.cell(province, data::table_column(columns.y));
    if (x_cell.empty() || y_cell.empty())
        return {};
    const Pair pair{data::leading_number(x_cell), data::leading_number(y_cell)};
    if (is_none(pair.x, pair.y))
        return {};
    return pair;
}

/// Nothing lies farther out: no surface is larger, and a whole number of pixels stays exact.
constexpr double farthest = 1 << 24;

std::optional<StoredPosition> position(const data::ProvinceTable& provinces,
                                       const PositionColumns& columns, const Maps& maps,
                                       int province) {
    const auto pair = stored_pair(provinces, columns, province);
    if (!pair)
        return {};
    const StoredPosition on_map{province, columns.drawing, pair->x - maps.x_offset,
                                pair->y - maps.y_offset};
    if (!(std::abs(on_map.x) <= farthest && std::abs(on_map.y) <= farthest))
        return {};
    return on_map;
}

bool contains(const Area& area, const StoredPosition& position) {
    return position.x >= area.left && position.x < area.right && position.y >= area.top &&
           position.y < area.bottom;
}

} // namespace

bool has_position(const data::ProvinceTable& provinces, const PositionColumns& columns,
                  int province) {
    return stored_pair(provinces, columns, province).has_value();
}

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
