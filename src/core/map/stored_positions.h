#pragma once

#include "data/province_table.h"
#include "map/maps.h"
#include "map/mode.h"
#include "map/position_columns.h"

#include <vector>

/// The positions that the province table keeps, as points of the map.
namespace map {

/// A rectangle of the map in pixels; a point on its right or lower edge is outside.
struct Area {
    double left;
    double top;
    double right;
    double bottom;
};

struct StoredPosition {
    int province;
    int drawing; // 0 to 3 for the terrain drawings, PositionColumns::no_drawing for the others
    double x;    // pixels of the map
    double y;
};

/// Returns whether the columns hold a position of the province: the pair is neither empty nor -1
/// nor -100. Throws subscript out of range.
bool has_position(const data::ProvinceTable& provinces, const PositionColumns& columns,
                  int province);

/// Returns the province's positions that the mode places; a pair that is empty, -1 or -100, or that
/// lies beyond all maps, is none.
/// Throws subscript out of range.
std::vector<StoredPosition> positions_of(const data::ProvinceTable& provinces, Mode mode,
                                         const Maps& maps, int province);

/// Returns all provinces' positions that the mode places within the area.
std::vector<StoredPosition> positions_in(const data::ProvinceTable& provinces, Mode mode,
                                         const Maps& maps, const Area& area);

} // namespace map
