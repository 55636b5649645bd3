#pragma once

#include <span>
#include <string>
#include <string_view>

namespace gfx {

/// Returns whether the names, letter case aside, hold all 40 bitmaps that terrain art consists of:
/// five terrain types with eight variants each.
bool is_complete_terrain_art(std::span<const std::string> names);

} // namespace gfx
