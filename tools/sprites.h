#pragma once

#include "canvas.h"

namespace sample {

/// Every frame of every sprite has this size; the sprite stands on the middle of its lower side.
inline constexpr Size frame_size = {28, 28};
inline constexpr int sprite_frames = 4;
inline constexpr int sprite_origin_x = 14;
inline constexpr int sprite_origin_y = 26;

/// Each draws frame 0 to 3 of a sprite.
void draw_castle(Canvas& canvas, int frame);
void draw_domes(Canvas& canvas, int frame);
void draw_colony(Canvas& canvas, int frame);
void draw_hamlet(Canvas& canvas, int frame);
void draw_pikeman(Canvas& canvas, int frame);
void draw_rider(Canvas& canvas, int frame);
void draw_musketeer(Canvas& canvas, int frame);
void draw_cannon(Canvas& canvas, int frame);
void draw_ship(Canvas& canvas, int frame);
void draw_lighthouse(Canvas& canvas, int frame);
void draw_mill(Canvas& canvas, int frame);
void draw_workshop(Canvas& canvas, int frame);

} // namespace sample
