#include "map/stored_positions.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

std::string text(const std::vector<map::StoredPosition>& positions) {
    std::ostringstream out;
    for (const auto& position : positions)
        out << position.province << '/' << position.drawing << ':' << position.x << ','
            << position.y << ' ';
    return out.str();
}

void put(data::ProvinceTable& table, int province, int file_column, const char* x, const char* y) {
    table.write(province, data::table_column(data::FileColumn{file_column}), x);
    table.write(province, data::table_column(data::FileColumn{file_column + 1}), y);
}

TEST(StoredPositions, AreThoseOfTheModeInTheArea) {
    data::ProvinceTable table;
    const map::Maps maps{"", "", "", 10.5, 100};
    put(table, 1, 29, "30.5", "120"); // 20, 20 of the map
    put(table, 2, 29, "110.5", "120");
    put(table, 2018, 29, "10.5", "100");
    put(table, 3, 29, "-1", "120");
    put(table, 4, 29, "30", "");
    put(table, 5, 29, "1e5", "100"); // read as 1: left of the map
    put(table, 6, 29, "99999999999999999999", "120");
    put(table, 0, 29, "30.5", "120");
    put(table, 1, 38, "-100", "-100");
    put(table, 1, 47, "60.5", "150");
    put(table, 7, 41, "60.5", "150");

    put(table, 8, 29, "-1", "-1");
    put(table, 9, 29, "-100", "-100");

    const map::Area area{0, 0, 100, 100};
    EXPECT_EQ(text(positions_in(table, map::Mode::ville, maps, area)), "1/-1:20,20 2018/-1:0,0 ");
    EXPECT_EQ(text(positions_in(table, map::Mode::dessin, maps, area)), "7/1:50,50 1/3:50,50 ");
    EXPECT_EQ(text(positions_in(table, map::Mode::port, maps, area)), "");
    EXPECT_EQ(text(positions_of(table, map::Mode::ville, maps, 2)), "2/-1:100,20 ");
    EXPECT_EQ(text(positions_of(table, map::Mode::dessin, maps, 1)), "1/3:50,50 ");
    EXPECT_EQ(text(positions_of(table, map::Mode::ville, maps, 6)), "");

    // Only the two pairs mean none: with a negative offset the numbers of a position are negative.
    const map::Maps shifted{"", "", "", -100, -110};
    EXPECT_EQ(text(positions_in(table, map::Mode::ville, shifted, {0, 0, 110, 231})),
              "3/-1:99,230 5/-1:101,210 ");
    put(table, 8, 29, "-1", "-100");
    EXPECT_EQ(text(positions_of(table, map::Mode::ville, shifted, 8)), "8/-1:99,10 ");
}

} // namespace
