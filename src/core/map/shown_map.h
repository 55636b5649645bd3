#pragma once

namespace map {

/// Which of the maps the map window shows.
enum class ShownMap { map_1, map_2, id_map };

} // namespace map
