#include "map/field_colours.h"
#include "map/palette.h"
#include "support/bitmaps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

namespace {

using map::ColourClass;
using map::FieldColours;
using map::Pixel;
namespace column = data::column;

using Light = std::array<double, 3>;
using Sight = std::array<Light, 3>; // a matrix over red, green and blue amounts of light

constexpr std::array<Sight, 3> sights = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0.1523, 1.0526, -0.2049}, {0.1145, 0.7863, 0.0992}, {-0.0039, -0.0481, 1.0520}}},
    {{{0.3673, 0.8606, -0.2280}, {0.2801, 0.6725, 0.0474}, {-0.0118, 0.0429, 0.9690}}},
}};

/// Returns lightness and the two colour axes of what somebody with that sight sees.
Light seen(Pixel pixel, const Sight& sight) {
    Light light{};
    for (std::size_t channel = 0; channel < 3; ++channel) {
        const double shown = (pixel >> (16 - 8 * channel) & 0xFF) / 255.0;
        light[channel] = shown <= 0.04045 ? shown / 12.92 : std::pow((shown + 0.055) / 1.055, 2.4);
    }
    Light turned{};
    for (std::size_t row = 0; row < 3; ++row)
        turned[row] = std::clamp(sight[row][0] * light[0] + sight[row][1] * light[1] +
                                     sight[row][2] * light[2],
                                 0.0, 1.0);
    const auto [red, green, blue] = turned;
    const double x = std::cbrt((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.95047);
    const double y = std::cbrt(0.2126 * red + 0.7152 * green + 0.0722 * blue);
    const double z = std::cbrt((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double distance(Pixel left, Pixel right, const Sight& sight) {
    const auto first = seen(left, sight);
    const auto second = seen(right, sight);
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

TEST(Palette, CodesAreToldApartHoweverColoursAreSeen) {
    for (const auto& sight : sights) {
        for (std::size_t code = 0; code < 150; ++code)
            EXPECT_GT(distance(map::code_colour(code), map::code_colour(code + 1), sight), 8)
                << code;
        for (std::size_t first = 0; first < 12; ++first) {
            for (std::size_t second = 0; second < first; ++second)
                EXPECT_GT(distance(map::code_colour(first), map::code_colour(second), sight), 11)
                    << first << " and " << second;
        }
        for (int step = 0; step < 10; ++step)
            EXPECT_GT(seen(map::scale_colour(step / 10.0), sight)[0],
                      seen(map::scale_colour((step + 1) / 10.0), sight)[0] + 3)
                << step;
    }
}

class FieldColoursTest : public testing::Test {
  protected:
    void set(int province, data::FileColumn column, std::string_view text) {
        table_.load(province, data::table_column(column), text);
    }

    FieldColours colours(data::FileColumn column, std::span<const std::string> codes = {}) const {
        return {table_, editor::fields[data::field_number(column)], codes, "5"};
    }

    data::ProvinceTable table_;
};

TEST_F(FieldColoursTest, ACodeHasOneColourAndTheSeaKeepsIts) {
    const std::array<std::string, 3> codes = {"catholic", "reformed", "hindu"};
    set(1, column::religion, "HINDU");
    set(2, column::religion, "catholic");
    set(3, column::religion, "zoroastrian");
    set(4, column::religion, "-");
    set(2018, column::religion, "hindu");
    set(5, column::religion, "hindu");
    set(5, column::terrain, "5");
    const auto shown = colours(column::religion, codes);
    ASSERT_EQ(shown.classes().size(), 5U);
    using Kind = ColourClass::Kind;
    const std::array<Kind, 5> kinds = {Kind::code, Kind::code, Kind::code, Kind::none, Kind::sea};
    const std::array<std::string, 5> values = {"catholic", "hindu", "zoroastrian", "", ""};
    for (std::size_t at = 0; at < kinds.size(); ++at) {
        EXPECT_EQ(shown.classes()[at].kind, kinds[at]);
        EXPECT_EQ(shown.classes()[at].value, values[at]);
    }
    EXPECT_EQ(shown.classes()[1].provinces, (std::vector<int>{1, 2018}));
    EXPECT_EQ(shown.classes()[4].provinces, (std::vector<int>{5}));
    EXPECT_EQ(shown.colour(1), map::code_colour(2));
    EXPECT_EQ(shown.colour(1), shown.colour(2018));
    EXPECT_EQ(shown.colour(4), shown.colour(6)); // without a value
    EXPECT_EQ(shown.colour(0), map::no_pixel);
    EXPECT_EQ(shown.colour(2019), map::no_pixel);
}

TEST_F(FieldColoursTest, NumbersHaveAScale) {
    set(1, column::income, "-4");
    set(2, column::income, "8.5");
    set(3, column::income, "x");
    const auto few = colours(column::income);
    ASSERT_EQ(few.classes().size(), 3U);
    EXPECT_EQ(few.classes()[0].value, "-4");
    EXPECT_EQ(few.colour(1), map::scale_colour(0));
    EXPECT_EQ(few.colour(2), map::scale_colour(1));
    EXPECT_EQ(few.classes()[2].kind, ColourClass::Kind::none);
    EXPECT_EQ(few.classes()[2].provinces.size(), 2016U);

    for (int province = 1; province <= 101; ++province)
        set(province, column::income, std::to_string(101 - province));
    const auto many = colours(column::income);
    ASSERT_EQ(many.classes().size(), 9U); // eight ranges, and no value
    EXPECT_EQ(many.classes()[0].value + " " + many.classes()[0].highest, "0 12");
    EXPECT_EQ(many.classes()[7].value + " " + many.classes()[7].highest, "88 100");
    EXPECT_EQ(many.classes()[7].provinces.front(), 1);
    EXPECT_EQ(many.classes()[7].provinces.size(), 13U);
    EXPECT_EQ(many.colour(1), map::scale_colour(1));
    EXPECT_EQ(many.colour(51), map::scale_colour(0.5));
}

TEST_F(FieldColoursTest, ColoursLieOverLightAndShadow) {
    set(7, column::continent, "asia");
    const std::array<std::string, 1> codes = {"asia"};
    const auto shown = colours(column::continent, codes);
    const auto id = [](int province) { return 0xFF000000 | bitmaps::colour_of(province); };
    std::array<Pixel, 4> pixels = {0xFFFFFFFF, 0xFF000000, 0xFF123456, 0xFF654321};
    shown.tint(std::array<Pixel, 4>{id(7), id(7), id(2019), map::no_pixel}, pixels);
    const auto green = [](Pixel pixel) { return pixel >> 8 & 0xFF; };
    EXPECT_NEAR(green(pixels[0]), green(shown.colour(7)), 2);
    EXPECT_NEAR(green(pixels[1]), green(shown.colour(7)) * 0.6, 2);
    EXPECT_EQ(pixels[2], 0xFF123456); // what is no province stays
    EXPECT_EQ(pixels[3], 0xFF654321);
}

} // namespace
