#include "sprite_sets.h"

#include "gfx/sprite_kind.h"
#include "sprites.h"
#include "text_files.h"

#include <array>

namespace sample {

namespace {

constexpr Colour outline = {34, 30, 32};

struct Picture {
    const char* name;
    void (*draw)(Canvas&, int frame);
};

constexpr std::array<Picture, 12> pictures = {{
    {"castle", draw_castle},
    {"domes", draw_domes},
    {"colony", draw_colony},
    {"hamlet", draw_hamlet},
    {"pikeman", draw_pikeman},
    {"rider", draw_rider},
    {"musketeer", draw_musketeer},
    {"cannon", draw_cannon},
    {"ship", draw_ship},
    {"lighthouse", draw_lighthouse},
    {"mill", draw_mill},
    {"workshop", draw_workshop},
}};

/// How a descriptor writes its sprites: in the usual order, or in another one that means the same.
enum class Style { usual, frames_first };

struct SpriteSet {
    gfx::SpriteKind kind{};
    const char* file = nullptr; // without ".spr"
    const char* name = nullptr;
    std::array<const char*, 2> pictures{}; // the second one may be missing
    Style style = Style::usual;
    bool fills_a_set = true;
};

constexpr std::array<SpriteSet, 12> sets = {{
    {gfx::SpriteKind::ville, "city1", "Castles", {"castle", nullptr}},
    {gfx::SpriteKind::ville, "city2", "Domes", {"domes", nullptr}},
    {gfx::SpriteKind::ville, "city3", "Colonies", {"colony", nullptr}, Style::frames_first},
    {gfx::SpriteKind::ville, "villages", "Villages", {"hamlet", "colony"}, Style::usual, false},
    {gfx::SpriteKind::armees, "army1", "Pikemen", {"pikeman", nullptr}},
    {gfx::SpriteKind::armees, "army2", "Riders", {"rider", nullptr}},
    {gfx::SpriteKind::armees, "army3", "Musketeers", {"musketeer", nullptr}},
    {gfx::SpriteKind::armees, "army4", "Cannons", {"cannon", nullptr}},
    {gfx::SpriteKind::port, "port1", "Ships", {"ship", nullptr}},
    {gfx::SpriteKind::port, "port2", "Lighthouses", {"lighthouse", nullptr}},
    {gfx::SpriteKind::manuf, "works1", "Mills", {"mill", nullptr}},
    {gfx::SpriteKind::manuf, "works2", "Workshops", {"workshop", nullptr}},
}};

void write_picture(const Picture& picture, const std::filesystem::path& folder) {
    Canvas strip({frame_size.width * sprite_frames, frame_size.height});
    for (int frame = 0; frame < sprite_frames; ++frame) {
        Canvas canvas(frame_size);
        picture.draw(canvas, frame);
        strip.paste(canvas.outlined(outline), frame * frame_size.width, 0);
    }
    strip.write(folder / (std::string(picture.name) + ".bmp"));
}

std::string descriptor(const SpriteSet& set) {
    const std::string origin = "\torigin = { x = " + std::to_string(sprite_origin_x) +
                               " y = " + std::to_string(sprite_origin_y) + " }\r\n";
    const std::string frames = "\tframes = " + std::to_string(sprite_frames) + "\r\n";
    std::string text;
    for (const char* picture : set.pictures) {
        if (!picture)
            continue;
        const std::string bitmap = "\tBitmap = \"" + std::string(picture) + ".bmp\"\r\n";
        text += "sprite = {\r\n";
        text += set.style == Style::usual ? bitmap + origin + frames : frames + bitmap + origin;
        text += "}\r\n";
    }
    return text;
}

} // namespace

std::vector<gfx::GraphicsFile> write_sprite_sets(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder / "bmp");
    for (const Picture& picture : pictures)
        write_picture(picture, folder / "bmp");

    std::vector<gfx::GraphicsFile> filled;
    for (const SpriteSet& set : sets) {
        const std::string file = std::string(set.file) + ".spr";
        write_file(folder / file, descriptor(set));
        if (set.fills_a_set)
            filled.push_back({std::string(gfx::info(set.kind).word), file, set.name});
    }
    return filled;
}

} // namespace sample
