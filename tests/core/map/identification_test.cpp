#include "map/identification.h"
#include "support/bitmaps.h"

#include <gtest/gtest.h>

namespace {

TEST(Identification, FollowsTheColour) {
    struct Row {
        map::Colour colour;
        int province;
    };
    constexpr Row rows[] = {
        {0x000000, 0},    {0x800000, 1},     {0x008000, 2},    {0x000080, 4},   {0x400000, 8},
        {0x004000, 16},   {0x000040, 32},    {0x101010, 3584}, {0x080000, 1},   {0x000800, 0},
        {0x000008, 0},    {0x880000, 1},     {0x0F0F0F, 585},  {0x010000, 512}, {0xFFFFFF, 4095},
        {0xF0F0F0, 4095}, {0x480000, 1 + 8}, {0xFF800000, 1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(map::province_of(row.colour), row.province) << std::hex << row.colour;
}

TEST(Identification, EveryIdentifierHasItsColour) {
    for (int identifier = 0; identifier < 4096; ++identifier)
        ASSERT_EQ(map::province_of(bitmaps::colour_of(identifier)), identifier);
}

} // namespace
