#pragma once

#include "gfx/graphics_file_list.h"
#include "gfx/sprite_tables.h"

#include <array>
#include <string>

namespace gfx {

/// The loaded sprite sets and what of them the preview shows.
struct Graphics {
    SpriteTables sprites;
    GraphicsFileList files;
    std::string current_set_name;       // last typed in the set name box, or taken out
    std::array<int, 4> previewed_row{}; // by sprite kind; the row that the graphics menu checks
    bool shows_drawings = true;         // the menu's check mark for terrain drawings

    int& previewed(SpriteKind kind) { return previewed_row.at(static_cast<std::size_t>(kind)); }
    int previewed(SpriteKind kind) const {
        return previewed_row.at(static_cast<std::size_t>(kind));
    }
};

} // namespace gfx
