#pragma once

#include "map/province_places.h"
#include "shell/place_check.h"
#include "shell/session.h"

#include <vector>

namespace shell {

/// Returns hints where the session's positions and the ID map, which lies where `maps` says,
/// disagree. Throws path/file access error with the reason for a map that cannot be read whole:
/// what is missing would seem to be of no province, thousands of times.
std::vector<Problem> check_on_map(const Session& session, const map::Maps& maps,
                                  const map::MapImage& id_map, map::ProvincePlaces& places,
                                  const ProvinceLines& lines);

} // namespace shell
