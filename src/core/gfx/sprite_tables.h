#pragma once

#include "gfx/sprite_kind.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gfx {

/// One sprite as the game's descriptor files give it.
struct Sprite {
    std::string bitmap_path;
    std::string set_name;
    std::int16_t origin_x = 0; // pixels in a frame
    std::int16_t origin_y = 0;
    std::int16_t frames = 0; // frames side by side in the bitmap
};

/// The sprites of one kind.
struct SpriteTable {
    std::vector<Sprite> rows; // as many as the kind's capacity, unused ones empty
    int count = 0;            // completed rows, and the row that is filled next
};

/// The sprites of every kind.
class SpriteTables {
  public:
    SpriteTables();

    SpriteTable& of(SpriteKind kind) { return tables_[kind]; }
    const SpriteTable& of(SpriteKind kind) const { return tables_[kind]; }

    /// Reads a descriptor file's bytes into the tables of its kind; a kind that is none is read
    /// without effect. Throws subscript out of range for a row beyond the kind's capacity, invalid
    /// procedure call for a bitmap without a quoted name, overflow for a number outside 16 bits;
    /// each with the line in its place. What was stored before stays.
    void read_descriptor(std::string_view bytes, std::string_view kind, std::string_view set_name,
                         std::string_view graphics_folder);

    /// Moves the rows below the set up by one, up to the kind's set limit, wherever the set name
    /// stands; of two rows in succession only the first one goes. The count is the caller's.
    void take_rows_out(SpriteKind kind, std::string_view set_name);

  private:
    KindArray<SpriteTable> tables_;
};

} // namespace gfx
