#include "map/selection_dots.h"
#include "support/bitmaps.h"

#include <gtest/gtest.h>
#include <string>

namespace {

/// A grid of identifiers, a letter each: "." is no pixel, "A" province 1, "Z" identifier 2019.
map::SelectionDots dots_of(const std::vector<std::string>& letters, std::string_view selected,
                           int width, int height) {
    editor::Selection selection;
    selection.apply(selected);
    return {width, height, selection, [&](int y, std::span<map::Pixel> pixels) {
                const auto& row = letters.at(static_cast<std::size_t>(y / map::dot_spacing));
                ASSERT_EQ(row.size(), pixels.size());
                for (std::size_t i = 0; i < row.size(); ++i) {
                    const int identifier = row[i] == 'Z' ? 2019 : row[i] - '@';
                    pixels[i] =
                        row[i] == '.' ? map::no_pixel : 0xFF000000 | bitmaps::colour_of(identifier);
                }
            }};
}

std::string drawn(const map::SelectionDots& dots) {
    std::string text;
    for (int row = 0; row < dots.rows(); ++row) {
        for (int column = 0; column < dots.columns(); ++column)
            text += dots.has_dot(column, row) ? '*' : ' ';
        text += '\n';
    }
    return text;
}

TEST(SelectionDots, LieInSelectedProvinces) {
    const auto dots = dots_of({"@AAB", "B.AA", "AZA."}, "1", 61, 60);
    EXPECT_EQ(drawn(dots), " ** \n"
                           "  **\n"
                           "* * \n");
    ASSERT_TRUE(dots.foreign_point());
    EXPECT_EQ(dots.foreign_point()->x, 20);
    EXPECT_EQ(dots.foreign_point()->y, 40);
    EXPECT_EQ(dots.foreign_point()->identifier, 2019);
    EXPECT_EQ(dots.foreign_point()->colour, bitmaps::colour_of(2019));

    EXPECT_EQ(dots.dotted_part(), (map::Box{0, 0, 3, 2}));
    const std::vector<std::string> corner = {"AAA", "AAB"};
    EXPECT_EQ(dots_of(corner, "2", 60, 40).dotted_part(), (map::Box{2, 1, 2, 1}));
    EXPECT_EQ(dots_of(corner, "3", 60, 40).dotted_part(), std::nullopt);
}

TEST(SelectionDots, GridCoversTheMap) {
    struct Row {
        int length;
        int points;
    };
    for (const Row row : {Row{0, 0}, Row{1, 1}, Row{20, 1}, Row{21, 2}, Row{40, 2}, Row{41, 3}}) {
        const std::string letters(static_cast<std::size_t>(row.points), 'B');
        const auto dots = dots_of({letters}, "2", row.length, 1);
        EXPECT_EQ(drawn(dots), std::string(letters.size(), '*') + "\n") << row.length;
        EXPECT_FALSE(dots.foreign_point());
    }
}

TEST(SelectionDots, ProvincesThatTheGridMissesHaveTheirOwn) {
    auto dots = dots_of({"AB", "BB"}, "1;3;4;5", 40, 40);
    EXPECT_TRUE(dots.single_dots().empty());
    map::ProvinceIndex index;
    const auto pixel = [](int identifier) { return 0xFF000000 | bitmaps::colour_of(identifier); };
    index.add_row(7, std::vector<map::Pixel>{pixel(4), pixel(4), pixel(4), pixel(1), pixel(6)});
    index.add_row(8, std::vector<map::Pixel>{pixel(4), pixel(2), pixel(3)});
    for (int times = 0; times < 2; ++times) {
        dots.add_missed(index);
        std::string placed;
        for (const auto& point : dots.single_dots())
            placed += std::to_string(point.x) + "," + std::to_string(point.y) + " ";
        EXPECT_EQ(placed, "2,8 1,7 ") << "5 is not on the map, 1 is met, 6 not selected";
    }
}

} // namespace
