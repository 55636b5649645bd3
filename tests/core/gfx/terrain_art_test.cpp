#include "gfx/terrain_art.h"

#include <gtest/gtest.h>

namespace {

TEST(TerrainArt, FileFollowsTheCodes) {
    struct Example {
        const char* terrain;
        const char* climate;
        const char* variant;
        const char* file;
    };
    constexpr Example examples[] = {
        {"0", "0", "0", "plains0.bmp"},   {"1", "8", "7", "forest7.bmp"},
        {"2", "3", "1", "mountain1.bmp"}, {"3", "0", "2", "desert2.bmp"},
        {"4", "8", "3", "marsh3.bmp"},    {"0", "8", "4", "ice4.bmp"},
        {"5", "0", "5", "plains5.bmp"},   {"6", "8", "5", "ice5.bmp"}, // no code but 1 to 4 has art
        {"-1", "7", "6", "plains6.bmp"},  {"", "", "", "plains0.bmp"},
        {" 1 ", "", "x", "forest0.bmp"},  {"11", "", "9", "plains9.bmp"},
    };
    for (const auto& example : examples)
        EXPECT_EQ(gfx::terrain_art_file(example.terrain, example.climate, example.variant),
                  example.file);
}

TEST(TerrainArt, IsCompleteWithAllButPlains) {
    std::vector<std::string> names = {"plains0.bmp", "desert8.bmp", "forest0.bmp.bmp", "ice.bmp"};
    for (const auto type : {"DESERT", "forest", "Ice", "marsh", "mountain"}) {
        for (int variant = 0; variant < gfx::terrain_variants; ++variant)
            names.push_back(gfx::terrain_art_file(type, variant));
    }
    EXPECT_TRUE(gfx::is_complete_terrain_art(names));
    names.pop_back();
    EXPECT_FALSE(gfx::is_complete_terrain_art(names));
}

} // namespace
