#pragma once

#include "data/province_table.h"
#include "map/mode.h"
#include "map/province_index.h"

#include <optional>
#include <string_view>

namespace map {

/// Returns whether the province lacks the position that the mode places: its pair is empty, -1 or
/// -100, of the terrain drawings all four. Sea provinces, which hold `sea_code` as their terrain,
/// need none, and a port only coastal ones. Throws subscript out of range.
bool lacks_position(const data::ProvinceTable& provinces, Mode mode, int province,
                    std::string_view sea_code);

/// Returns how many provinces lack the position that the mode places; with an index (it may be
/// null) those without a pixel on the map are not counted.
int lacking_positions(const data::ProvinceTable& provinces, Mode mode, std::string_view sea_code,
                      const ProvinceIndex* index);

/// Returns the next province by identifier behind `after`, round the end and `after` itself last,
/// that lacks the position that the mode places and has a pixel on the map; nothing when none does.
std::optional<int> next_lacking(const data::ProvinceTable& provinces, Mode mode,
                                std::string_view sea_code, const ProvinceIndex& index, int after);

} // namespace map
