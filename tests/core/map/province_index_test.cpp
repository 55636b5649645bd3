#include "map/identification.h"
#include "map/province_index.h"
#include "support/bitmaps.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <tuple>
#include <vector>

namespace {

using map::Pixel;

/// Noise, rings and long runs, so that runs end at every place of a block of pixels.
std::vector<std::vector<Pixel>> some_map(int width, int height) {
    std::mt19937 random(5);
    std::vector<std::vector<Pixel>> rows(static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        auto& row = rows[static_cast<std::size_t>(y)];
        while (row.size() < static_cast<std::size_t>(width)) {
            const Pixel pixel = 0xFF000000 | bitmaps::colour_of(static_cast<int>(random() % 40));
            row.resize(std::min<std::size_t>(row.size() + 1 + random() % 70,
                                             static_cast<std::size_t>(width)),
                       random() % 20 == 0 ? map::no_pixel : pixel);
        }
        for (const int ring : {0, 3, 9}) { // an inner pixel is not the middle of the box
            if (y >= ring && y < height - ring)
                row[static_cast<std::size_t>(ring)] =
                    row[static_cast<std::size_t>(width - 1 - ring)] =
                        0xFF000000 | bitmaps::colour_of(4095 - ring);
        }
    }
    return rows;
}

TEST(ProvinceIndex, AgreesWithEveryPixel) {
    constexpr int width = 333;
    constexpr int height = 50;
    const auto rows = some_map(width, height);
    map::ProvinceIndex index;
    for (int y = height - 1; y >= 0; --y)
        index.add_row(y, rows[static_cast<std::size_t>(y)]);

    std::map<int, map::ProvincePlace> expected;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const Pixel pixel = rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (pixel == map::no_pixel)
                continue;
            auto& place = expected
                              .try_emplace(map::province_of(pixel),
                                           map::ProvincePlace{{x, y, x, y}, 0, 0, 0, 0})
                              .first->second;
            place.box.left = std::min(place.box.left, x);
            place.box.right = std::max(place.box.right, x);
            place.box.bottom = y;
            ++place.pixels;
        }
    }
    EXPECT_EQ(expected.size(), 43U);
    for (int identifier = 0; identifier < map::ProvinceIndex::identifiers; ++identifier) {
        const auto* place = index.place(identifier);
        ASSERT_EQ(place != nullptr, expected.contains(identifier)) << identifier;
        if (!place)
            continue;
        const auto& right = expected.at(identifier);
        EXPECT_EQ(std::tie(place->box, place->pixels), std::tie(right.box, right.pixels));
        const auto& inner_row = rows.at(static_cast<std::size_t>(place->inner_y));
        EXPECT_EQ(map::province_of(inner_row.at(static_cast<std::size_t>(place->inner_x))),
                  identifier);
    }
}

} // namespace
