#include "gfx/sprite_kind.h"

#include "data/text.h"

namespace gfx {

std::optional<SpriteKind> sprite_kind(std::string_view word) {
    for (const auto& candidate : sprite_kinds) {
        if (data::equal_ignoring_case(candidate.word, word))
            return candidate.kind;
    }
    return std::nullopt;
}

} // namespace gfx
