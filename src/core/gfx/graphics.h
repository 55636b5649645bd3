#pragma once

#include "gfx/graphics_file_list.h"
#include "gfx/sprite_tables.h"

#include <string>

namespace gfx {

/// The loaded sprite sets and what of them the preview shows.
struct Graphics {
    SpriteTables sprites;
    GraphicsFileList files;
    std::string current_set_name;   // last typed in the set name box, or taken out
    KindArray<int> previewed_row{}; // the row that the graphics menu checks
    bool shows_drawings = true;     // the menu's check mark for terrain drawings
};

} // namespace gfx
