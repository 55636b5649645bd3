#pragma once

#include "data/indexed_array.h"

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
inline constexpr data::IndexedArray<SpriteKind, SpriteKindInfo, 4> sprite_kinds = {{{
    {SpriteKind::manuf, "manuf", 4, 2},
    {SpriteKind::ville, "ville", 6, 3},
    {SpriteKind::armees,
     "arm\xE9"
     "es",
     12, 4},
    {SpriteKind::port, "port", 4, 2},
}}};

/// One value for each kind.
template <typename Value>
using KindArray = data::IndexedArray<SpriteKind, Value, 4>;

/// Returns the kind's row of the table above.
constexpr const SpriteKindInfo& info(SpriteKind kind) {
    return sprite_kinds[kind];
}

/// Returns the kind that the word names, letter case aside; nothing for any other word.
std::optional<SpriteKind> sprite_kind(std::string_view word);

} // namespace gfx
