#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace gfx {

/// What the game draws with sprites.
enum class SpriteKind { manuf, ville, armees, port };

struct SpriteKindInfo {
    SpriteKind kind;
    std::string_view word; // as config.txt and the file list write it
    int capacity;          // rows of the kind's tables
    int set_limit;         // sets that the graphics file selection admits
};

/// The kinds, in the order of the enumeration.
inline constexpr std::array<SpriteKindInfo, 4> sprite_kinds = {{
    {SpriteKind::manuf, "manuf", 4, 2},
    {SpriteKind::ville, "ville", 6, 3},
    {SpriteKind::armees,
     "arm\xE9"
     "es",
     12, 4},
    {SpriteKind::port, "port", 4, 2},
}};

/// Returns the kind's row of the table above.
constexpr const SpriteKindInfo& info(SpriteKind kind) {
    return sprite_kinds.at(static_cast<std::size_t>(kind));
}

/// Returns the kind that the word names, letter case aside; nothing for any other word.
std::optional<SpriteKind> sprite_kind(std::string_view word);

} // namespace gfx
