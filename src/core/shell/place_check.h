#pragma once

#include "data/province_table.h"
#include "map/maps.h"
#include "map/province_index.h"
#include "shell/problem.h"

#include <functional>
#include <string>
#include <vector>

namespace shell {

/// Returns the identifier at the pixel, which is inside the ID map.
using ProvinceAt = std::function<int(int x, int y)>;

/// The open ID map as the check sees it.
struct IdMap {
    int width; // pixels
    int height;
    const map::Maps& maps; // where it lies in the game's coordinates
    const map::ProvinceIndex& index;
    ProvinceAt province_at;
};

/// Returns the code of terrain option 5, the sea, in the language file; "5" where it has none.
std::string sea_code(const LanguageTexts& language);

/// Returns hints where the table's positions and the ID map disagree, province by province, then
/// the identifiers of the map that no province has.
std::vector<Problem> check_places(const data::ProvinceTable& table, const LanguageTexts& language,
                                  const IdMap& id_map, const ProvinceLines& lines);

} // namespace shell
