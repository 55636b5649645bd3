#include "terrain_art.h"

#include "canvas.h"
#include "random.h"

#include <algorithm>
#include <array>
#include <string>

namespace sample {

namespace {

constexpr Size drawing_size = {36, 26};
constexpr int ground = 23; // row that what stands in front stands on
constexpr Colour outline = {44, 40, 40};

/// A thing that stands somewhere in the drawing.
struct Spot {
    int x;
    int y;
};

/// Returns spots apart from each other, those farther back first.
std::vector<Spot> spots(int count, int apart, int back_row, Random& random) {
    std::vector<Spot> found;
    for (int tries = 0; tries < 60 && static_cast<int>(found.size()) < count; ++tries) {
        const Spot spot{random.between(6, drawing_size.width - 7),
                        random.between(back_row, ground)};
        const bool free = std::none_of(found.begin(), found.end(), [&](Spot other) {
            return std::abs(other.x - spot.x) + 2 * std::abs(other.y - spot.y) < apart;
        });
        if (free)
            found.push_back(spot);
    }
    std::stable_sort(found.begin(), found.end(), [](Spot a, Spot b) { return a.y < b.y; });
    return found;
}

void fir(Canvas& canvas, Spot foot, Random& random) {
    const Colour green = {static_cast<std::uint8_t>(38 + random.below(20)),
                          static_cast<std::uint8_t>(92 + random.below(26)), 58};
    canvas.box(foot.x, foot.y - 2, 1, 3, {84, 58, 38});
    canvas.peak(foot.x, foot.y - 8, foot.y - 2, 4, green);
    canvas.peak(foot.x, foot.y - 11, foot.y - 5, 3, shaded(green, 1.12));
}

void leaf_tree(Canvas& canvas, Spot foot, Random& random) {
    const Colour green = {static_cast<std::uint8_t>(72 + random.below(34)),
                          static_cast<std::uint8_t>(128 + random.below(26)), 56};
    canvas.box(foot.x, foot.y - 3, 2, 4, {96, 68, 44});
    canvas.ball(foot.x, foot.y - 7, 4, 4, green);
}

void draw_plains(Canvas& canvas, int variant, Random& random) {
    for (int row = ground - 10; row <= ground; row += 3) {
        const int inset = 3 + random.below(4) + (ground - row) / 3;
        const Colour crop = random.chance(50) ? Colour{206, 184, 92} : Colour{142, 168, 84};
        canvas.box(inset, row, drawing_size.width - 2 * inset, 2, crop);
        for (int x = inset; x < drawing_size.width - inset; x += 2)
            canvas.dot(x, row, shaded(crop, 1.15));
    }
    if (variant % 2 == 0) {
        const int x = random.between(8, 22);
        canvas.box(x, ground - 9, 8, 6, {222, 206, 176});
        canvas.peak(x + 4, ground - 14, ground - 9, 6, {168, 74, 52});
        canvas.box(x + 3, ground - 6, 2, 3, {92, 62, 42});
    } else {
        leaf_tree(canvas, {random.between(9, 26), ground - 5}, random);
    }
}

void draw_forest(Canvas& canvas, int variant, Random& random) {
    for (const Spot foot : spots(9, 7, 13, random)) {
        if (variant < 4 || (variant == 4 && random.chance(50)))
            fir(canvas, foot, random);
        else
            leaf_tree(canvas, foot, random);
    }
}

void draw_mountain(Canvas& canvas, int variant, Random& random) {
    const Colour rock = variant % 2 == 0 ? Colour{142, 122, 102} : Colour{124, 120, 122};
    const int peaks = 2 + variant % 2;
    for (int index = 0; index < peaks; ++index) {
        const bool is_front = index + 1 == peaks;
        const int x = is_front ? random.between(15, 20)
                               : random.between(index == 0 ? 8 : 24, index == 0 ? 12 : 28);
        const int top = is_front ? random.between(2, 4) : random.between(7, 11);
        canvas.peak(x, top, ground, (ground - top) * 11 / 20, rock);
        const int snow = (ground - top) / 3;
        canvas.peak(x, top, top + snow, snow * 11 / 20, {226, 230, 236});
        for (int tooth = -snow / 2; tooth <= snow / 2; tooth += 2)
            canvas.line(x + tooth, top + snow, x + tooth, top + snow + random.below(3),
                        {214, 218, 226});
        for (int crack = 0; crack < 3; ++crack) {
            const int y = random.between(top + snow + 2, ground - 3);
            const int side = x + random.between(1, (y - top) / 3 + 1);
            canvas.line(side, y, side + 1, y + 2, shaded(rock, 0.6));
        }
    }
}

void draw_desert(Canvas& canvas, int variant, Random& random) {
    const Colour sand = {224, 192, 122};
    for (const Spot middle : spots(4, 12, 15, random)) {
        const int reach = random.between(5, 9);
        for (int dx = -reach; dx <= reach; ++dx) {
            const int height = (reach - std::abs(dx)) / 2 + 1;
            canvas.box(middle.x + dx, middle.y - height, 1, height + 1,
                       shaded(sand, dx < reach / 4 ? 1.08 : 0.8));
        }
    }
    const int x = random.between(9, 26);
    if (variant % 3 == 0) {
        const Colour cactus = {84, 134, 74};
        canvas.box(x, ground - 12, 2, 11, cactus);
        canvas.box(x - 3, ground - 9, 3, 1, cactus);
        canvas.box(x - 3, ground - 11, 1, 3, cactus);
        canvas.box(x + 2, ground - 7, 3, 1, cactus);
        canvas.box(x + 4, ground - 10, 1, 4, shaded(cactus, 0.8));
    } else if (variant % 3 == 1) {
        canvas.line(x, ground - 2, x + 2, ground - 13, {134, 98, 58});
        for (const int reach : {-6, -4, 4, 6})
            canvas.line(x + 2, ground - 14, x + 2 + reach, ground - 17 + std::abs(reach),
                        {88, 140, 66});
        canvas.ball(x + 2, ground - 14, 1, 1, {108, 156, 74});
    } else {
        canvas.ball(x, ground - 3, 4, 3, {172, 134, 92});
        canvas.ball(x + 5, ground - 2, 2, 2, {186, 148, 102});
    }
}

void draw_marsh(Canvas& canvas, int variant, Random& random) {
    for (const Spot middle : spots(3 + variant % 3, 11, 14, random)) {
        canvas.ball(middle.x, middle.y - 1, random.between(5, 8), 2, {96, 142, 156});
        canvas.line(middle.x - 3, middle.y - 1, middle.x + 2, middle.y - 1, {168, 204, 208});
    }
    for (const Spot foot : spots(10, 6, 12, random)) {
        const int height = random.between(6, 10);
        const int lean = random.between(-1, 1);
        canvas.line(foot.x, foot.y, foot.x + lean, foot.y - height, {104, 130, 62});
        canvas.line(foot.x + 2, foot.y, foot.x + 3, foot.y - height + 3, {134, 156, 78});
        if (random.chance(60))
            canvas.box(foot.x + lean, foot.y - height - 2, 1, 3, {112, 72, 44});
    }
}

void draw_ice(Canvas& canvas, int variant, Random& random) {
    const Colour ice = {214, 232, 242};
    for (const Spot middle : spots(5, 11, 12, random)) {
        const int reach = random.between(4, 7);
        canvas.ball(middle.x, middle.y, reach, 2, {122, 168, 200});
        canvas.ball(middle.x, middle.y - 1, reach, 2, ice);
        canvas.line(middle.x - reach / 2, middle.y - 2, middle.x + 1, middle.y - 1,
                    {246, 252, 255});
    }
    if (variant % 2 == 0) {
        const int x = random.between(11, 24);
        canvas.peak(x, ground - random.between(14, 18), ground - 3, 7, {196, 222, 238});
        canvas.peak(x + 5, ground - random.between(8, 11), ground - 3, 5, {182, 212, 232});
    }
}

struct Art {
    const char* name;
    void (*draw)(Canvas&, int variant, Random&);
};

constexpr std::array<Art, 6> arts = {{
    {"plains", draw_plains},
    {"forest", draw_forest},
    {"mountain", draw_mountain},
    {"desert", draw_desert},
    {"marsh", draw_marsh},
    {"ice", draw_ice},
}};

} // namespace

void write_terrain_art(const std::filesystem::path& folder) {
    constexpr int variants = 8;
    std::filesystem::create_directories(folder);
    std::uint64_t seed = 0;
    for (const Art& art : arts) {
        for (int variant = 0; variant < variants; ++variant) {
            Random random(++seed);
            Canvas canvas(drawing_size);
            art.draw(canvas, variant, random);
            canvas.outlined(outline).write(folder / (art.name + std::to_string(variant) + ".bmp"));
        }
    }
}

} // namespace sample
