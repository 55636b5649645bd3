#include "sprites.h"

#include "canvas.h"
#include "gfx/sprite_kind.h"

#include <array>

namespace sample {

namespace {

constexpr Size sprite_size = {28, 28};
constexpr int foot = 14; // column and row of the point that stands on a province's position
constexpr int ground = 26;
constexpr Colour outline = {34, 30, 32};
constexpr Colour stone = {176, 168, 156};
constexpr Colour plaster = {224, 208, 176};
constexpr Colour wood = {140, 98, 60};
constexpr Colour dark = {62, 50, 46};
constexpr Colour tiles = {178, 74, 54};
constexpr Colour skin = {230, 184, 142};
constexpr Colour steel = {188, 196, 206};
constexpr Colour gold = {226, 184, 72};
constexpr Colour sea = {84, 140, 184};

void flag(Canvas& canvas, int x, int y, Colour colour) {
    canvas.line(x, y, x, y + 6, dark);
    for (int column = 1; column <= 5; ++column) {
        const int wave = column % 4 / 2;
        canvas.box(x + column, y + wave, 1, 3, shaded(colour, wave == 0 ? 1.1 : 0.85));
    }
}

/// Draws two puffs of smoke, the lower one `rise` steps above the chimney.
void smoke(Canvas& canvas, int x, int y, int rise) {
    for (const int end = rise + 2; rise <= end; rise += 2)
        canvas.ball(x + rise / 2, y - 2 * rise, rise > 1 ? 1 : 0, rise > 1 ? 1 : 0,
                    {210, 210, 212});
}

void house(Canvas& canvas, int x, int base, int width, Colour wall, Colour roof) {
    canvas.box(x, base - 5, width, 6, wall);
    canvas.box(x + width * 2 / 3, base - 5, width - width * 2 / 3, 6, shaded(wall, 0.8));
    canvas.peak(x + width / 2, base - 10, base - 5, width / 2 + 1, roof);
    canvas.box(x + 2, base - 2, 2, 3, dark);
}

void tower(Canvas& canvas, int x, int top, int width) {
    canvas.box(x, top, width, ground - top + 1, stone);
    canvas.box(x, top, 1, ground - top + 1, shaded(stone, 1.2));
    canvas.box(x + width - 2, top, 2, ground - top + 1, shaded(stone, 0.78));
    canvas.box(x + width / 2, top + 4, 1, 3, dark);
}

void dome(Canvas& canvas, int x, int y, int radius, Colour colour) {
    canvas.ball(x, y, radius, radius, colour);
    canvas.line(x, y - radius - 2, x, y - radius, gold);
}

void soldier(Canvas& canvas, int x, Colour coat) {
    canvas.box(x - 2, ground - 5, 2, 6, {74, 66, 84});
    canvas.box(x + 1, ground - 5, 2, 5, {60, 54, 70});
    canvas.box(x - 3, ground - 12, 7, 7, coat);
    canvas.box(x + 2, ground - 12, 2, 7, shaded(coat, 0.75));
    canvas.box(x - 3, ground - 7, 7, 1, gold);
    canvas.ball(x, ground - 15, 2, 2, skin);
}

void draw_castle(Canvas& canvas) {
    flag(canvas, 14, 1, {200, 48, 52});
    tower(canvas, 10, 8, 8);
    canvas.box(4, 17, 20, 10, stone);
    canvas.box(18, 17, 6, 10, shaded(stone, 0.85));
    for (int x = 4; x < 24; x += 3)
        canvas.box(x, 15, 2, 2, stone);
    tower(canvas, 2, 12, 5);
    tower(canvas, 21, 12, 5);
    canvas.peak(4, 6, 12, 4, tiles);
    canvas.peak(23, 6, 12, 4, tiles);
    canvas.box(12, 21, 4, 6, dark);
}

void draw_domes(Canvas& canvas) {
    const Colour copper = {72, 158, 146};
    for (const int x : {3, 23}) {
        canvas.box(x, 8, 2, 19, plaster);
        canvas.box(x - 1, 12, 4, 1, shaded(plaster, 0.8));
        canvas.peak(x, 3, 8, 2, copper);
    }
    dome(canvas, 14, 11, 6, copper);
    dome(canvas, 8, 16, 3, copper);
    dome(canvas, 20, 16, 3, copper);
    canvas.box(5, 16, 18, 11, plaster);
    canvas.box(17, 16, 6, 11, shaded(plaster, 0.85));
    for (const int x : {7, 13, 19})
        canvas.box(x, 20, 2, 7, dark);
    flag(canvas, 14, 0, {46, 140, 78});
}

void draw_colony(Canvas& canvas) {
    smoke(canvas, 9, 8, 0);
    canvas.box(8, 9, 2, 5, shaded(stone, 0.8));
    house(canvas, 4, 22, 9, wood, {112, 78, 52});
    house(canvas, 14, 23, 10, {198, 170, 124}, {150, 104, 62});
    flag(canvas, 20, 5, {58, 90, 176});
    canvas.line(20, 11, 20, 14, dark);
    for (int x = 2; x < 26; x += 2)
        canvas.box(x, 23, 1, 4, shaded(wood, x % 4 == 0 ? 1.0 : 0.8));
    canvas.box(2, 25, 24, 1, shaded(wood, 0.7));
}

void draw_hamlet(Canvas& canvas) {
    smoke(canvas, 18, 11, 0);
    house(canvas, 14, 22, 9, plaster, {196, 160, 88});
    house(canvas, 4, 26, 11, plaster, {206, 170, 96});
    canvas.ball(21, 23, 3, 3, {92, 142, 70});
}

void draw_pikeman(Canvas& canvas) {
    const Colour coat = {178, 52, 48};
    soldier(canvas, 11, coat);
    canvas.box(9, ground - 19, 5, 3, steel);
    canvas.box(8, ground - 17, 7, 1, shaded(steel, 0.8));
    canvas.line(17, 2, 17, ground - 1, wood);
    canvas.peak(17, 0, 3, 1, steel);
    canvas.box(14, ground - 11, 3, 2, skin);
    flag(canvas, 17, 5, coat);
}

void draw_rider(Canvas& canvas) {
    const Colour horse = {128, 84, 52};
    canvas.ball(12, 19, 8, 3, horse);
    canvas.line(19, 18, 22, 12, horse);
    canvas.line(20, 19, 23, 13, horse);
    canvas.ball(24, 12, 2, 2, horse);
    canvas.line(20, 11, 17, 16, dark);
    canvas.line(4, 18, 2, 22, dark);
    for (const int x : {6, 9, 15, 18})
        canvas.line(x, 21, x + (x % 2 == 0 ? 1 : -1), ground, shaded(horse, 0.85));
    canvas.box(10, 9, 5, 8, {54, 84, 168});
    canvas.box(14, 9, 1, 8, {40, 62, 130});
    canvas.ball(12, 6, 2, 2, skin);
    canvas.box(10, 3, 5, 2, steel);
    canvas.line(15, 13, 23, 3, steel);
    canvas.box(8, 16, 9, 2, gold);
}

void draw_musketeer(Canvas& canvas) {
    soldier(canvas, 12, {58, 124, 76});
    canvas.box(8, ground - 18, 9, 1, dark);
    canvas.box(10, ground - 20, 5, 2, {72, 56, 48});
    canvas.line(14, ground - 21, 17, ground - 22, {222, 80, 60});
    canvas.line(9, ground - 8, 25, ground - 12, wood);
    canvas.line(16, ground - 10, 25, ground - 12, shaded(steel, 0.7));
    canvas.box(14, ground - 11, 2, 2, skin);
}

void draw_cannon(Canvas& canvas) {
    for (int row = 0; row < 4; ++row)
        canvas.line(4, 18 + row, 21, 11 + row, shaded(steel, 0.75 - 0.1 * row));
    canvas.box(3, 18, 3, 4, {92, 96, 104});
    canvas.line(10, 21, 2, ground, wood);
    canvas.line(10, 22, 3, ground, wood);
    canvas.ball(13, 21, 5, 5, wood);
    canvas.ball(13, 21, 3, 3, {182, 140, 94});
    canvas.line(13, 17, 13, 25, shaded(wood, 0.7));
    canvas.line(9, 21, 17, 21, shaded(wood, 0.7));
}

void draw_ship(Canvas& canvas) {
    canvas.box(1, 24, 26, 3, sea);
    for (int x = 1; x < 26; x += 4)
        canvas.box(x, 24, 2, 1, {172, 208, 228});
    canvas.box(5, 19, 18, 3, wood);
    canvas.box(6, 22, 16, 2, shaded(wood, 0.8));
    canvas.box(20, 16, 5, 3, wood);
    canvas.line(2, 17, 6, 20, wood);
    canvas.box(6, 20, 16, 1, gold);
    canvas.line(13, 2, 13, 19, dark);
    canvas.line(20, 6, 20, 17, dark);
    canvas.ball(14, 10, 5, 5, {240, 234, 216});
    canvas.line(14, 6, 14, 14, {200, 60, 52});
    canvas.line(10, 10, 18, 10, {200, 60, 52});
    canvas.ball(21, 11, 3, 3, {240, 234, 216});
    canvas.box(14, 2, 4, 2, {200, 60, 52});
}

void draw_lighthouse(Canvas& canvas) {
    canvas.box(1, 24, 26, 3, sea);
    canvas.ball(15, 24, 9, 3, {134, 124, 112});
    canvas.box(3, 21, 10, 2, wood);
    for (const int x : {3, 7, 11})
        canvas.box(x, 22, 1, 4, shaded(wood, 0.7));
    for (int row = 8; row < 23; ++row) {
        const int half = 2 + (row - 8) / 6;
        const Colour band = row / 4 % 2 == 0 ? Colour{236, 230, 218} : Colour{196, 62, 54};
        canvas.box(17 - half, row, 2 * half, 1, band);
        canvas.box(17 + half - 2, row, 2, 1, shaded(band, 0.78));
    }
    canvas.box(14, 4, 6, 4, {252, 228, 120});
    canvas.peak(17, 1, 4, 4, dark);
    canvas.line(7, 4, 12, 5, {252, 236, 160});
    canvas.line(22, 5, 26, 4, {252, 236, 160});
}

void draw_mill(Canvas& canvas) {
    for (int row = 11; row <= ground; ++row) {
        const int half = 4 + (row - 11) / 5;
        canvas.box(14 - half, row, 2 * half, 1, plaster);
        canvas.box(14 + half - 3, row, 3, 1, shaded(plaster, 0.8));
    }
    canvas.peak(14, 5, 11, 6, tiles);
    canvas.box(12, ground - 4, 4, 5, dark);
    constexpr std::array<std::array<int, 2>, 4> ends = {{{10, 0}, {0, 10}, {-10, 0}, {0, -10}}};
    for (const auto& [dx, dy] : ends) {
        canvas.line(14, 11, 14 + dx, 11 + dy, wood);
        canvas.line(14 + (dx - dy) / 6, 11 + (dy + dx) / 6, 14 + dx - dy / 5, 11 + dy + dx / 5,
                    {246, 240, 222});
    }
    canvas.ball(14, 11, 1, 1, dark);
}

void draw_workshop(Canvas& canvas) {
    const Colour brick = {172, 96, 74};
    smoke(canvas, 20, 5, 0);
    smoke(canvas, 21, 4, 1);
    canvas.box(19, 6, 4, 14, brick);
    canvas.box(22, 6, 1, 14, shaded(brick, 0.7));
    canvas.box(3, 17, 20, 10, brick);
    canvas.box(17, 17, 6, 10, shaded(brick, 0.82));
    for (int x = 6; x < 20; x += 6)
        canvas.peak(x, 12, 17, 4, {120, 112, 118});
    for (const int x : {5, 10, 19})
        canvas.box(x, 19, 2, 3, {250, 202, 92});
    canvas.box(14, 21, 3, 6, dark);
}

/// A set that a descriptor with one sprite fills.
struct SpriteSet {
    gfx::SpriteKind kind;
    const char* file; // without ".spr"
    const char* name;
    const char* bitmap; // without ".bmp"
    void (*draw)(Canvas&);
};

constexpr std::array<SpriteSet, 11> sets = {{
    {gfx::SpriteKind::ville, "city1", "Castles", "castle", draw_castle},
    {gfx::SpriteKind::ville, "city2", "Domes", "domes", draw_domes},
    {gfx::SpriteKind::ville, "city3", "Colonies", "colony", draw_colony},
    {gfx::SpriteKind::armees, "army1", "Pikemen", "pikeman", draw_pikeman},
    {gfx::SpriteKind::armees, "army2", "Riders", "rider", draw_rider},
    {gfx::SpriteKind::armees, "army3", "Musketeers", "musketeer", draw_musketeer},
    {gfx::SpriteKind::armees, "army4", "Cannons", "cannon", draw_cannon},
    {gfx::SpriteKind::port, "port1", "Ships", "ship", draw_ship},
    {gfx::SpriteKind::port, "port2", "Lighthouses", "lighthouse", draw_lighthouse},
    {gfx::SpriteKind::manuf, "works1", "Mills", "mill", draw_mill},
    {gfx::SpriteKind::manuf, "works2", "Workshops", "workshop", draw_workshop},
}};

/// Writes the sprite's bitmap; returns its part of a descriptor.
std::string write_sprite(const std::filesystem::path& folder, const std::string& bitmap,
                         void (*draw)(Canvas&)) {
    Canvas canvas(sprite_size);
    draw(canvas);
    canvas.outlined(outline).write(folder / "bmp" / (bitmap + ".bmp"));
    return "sprite = {\r\n\tBitmap = \"" + bitmap +
           ".bmp\"\r\n\torigin = { x = " + std::to_string(foot) + " y = " + std::to_string(ground) +
           " }\r\n\tframes = 1\r\n}\r\n";
}

} // namespace

std::vector<gfx::GraphicsFile> write_sprite_sets(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder / "bmp");
    std::vector<gfx::GraphicsFile> files;
    for (const SpriteSet& set : sets) {
        const std::string file = std::string(set.file) + ".spr";
        write_file(folder / file, write_sprite(folder, set.bitmap, set.draw));
        files.push_back({std::string(gfx::info(set.kind).word), file, set.name});
    }
    write_file(folder / "villages.spr", write_sprite(folder, "hamlet", draw_hamlet) +
                                            write_sprite(folder, "colony", draw_colony));
    return files;
}

} // namespace sample
