#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace gfx {

/// The terrain types that have drawings. Terrain art may lack the last one.
inline constexpr std::array<std::string_view, 6> terrain_types = {"desert", "forest",   "ice",
                                                                  "marsh",  "mountain", "plains"};
inline constexpr int terrain_variants = 8;

/// Returns the name of the bitmap with the terrain type's variant.
std::string terrain_art_file(std::string_view type, int variant);

/// Returns the name of the bitmap that a drawing shows: for the province's `Terrain` and `Climate`
/// codes and the drawing's `Terrain variant`, as the province table keeps them.
std::string terrain_art_file(std::string_view terrain, std::string_view climate,
                             std::string_view variant);

/// Returns whether the names, letter case aside, hold all 40 bitmaps that terrain art consists of:
/// every terrain type but the last with eight variants each.
bool is_complete_terrain_art(std::span<const std::string> names);

} // namespace gfx
