#include "map/lacking_positions.h"
#include "support/bitmaps.h"

#include <gtest/gtest.h>

namespace {

TEST(LackingPositions, WhichProvincesNeedWhichPosition) {
    using enum map::Mode;
    const struct {
        map::Mode mode;
        int x_column; // of the province file; Y follows
        const char* x;
        const char* y;
        const char* terrain;
        const char* coast;
        bool lacks;
    } rows[] = {
        {ville, 29, "", "", "0", "", true},
        {ville, 29, "10", "20", "0", "", false},
        {ville, 29, "10", "", "0", "", true},
        {ville, 29, "-1", "-1", "0", "", true},
        {ville, 29, "-100", "-100.0", "0", "", true},
        {ville, 29, "-1", "-100", "0", "", false},
        {ville, 29, "", "", "Sea", "coastal", false},
        {ville, 31, "10", "20", "0", "", true}, // an army is no city
        {armees, 31, "10", "20", "0", "", false},
        {manuf, 35, "10", "20", "0", "", false},
        {dessin, 38, "", "", "0", "", true},
        {dessin, 47, "10", "20", "0", "", false}, // one of the four
        {port, 33, "", "", "sea", "Coastal", true},
        {port, 33, "10", "20", "0", "coastal", false},
        {port, 33, "", "", "0", "inland", false},
        {normal, 29, "10", "20", "0", "", true}, // places none
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        data::ProvinceTable table;
        const auto put = [&](int column, const char* text) {
            table.load(7, data::table_column(data::FileColumn{column}), text);
        };
        put(14, row.terrain);
        put(3, row.coast);
        put(row.x_column, row.x);
        put(row.x_column + 1, row.y);
        EXPECT_EQ(map::lacks_position(table, row.mode, 7, "sea"), row.lacks);
        const int others = row.mode == port ? 0 : data::last_province - 1;
        EXPECT_EQ(map::lacking_positions(table, row.mode, "sea", nullptr),
                  others + (row.lacks ? 1 : 0));
    }
}

TEST(LackingPositions, NextIsOnTheMapAndRoundTheEnd) {
    data::ProvinceTable table;
    map::ProvinceIndex index;
    std::vector<map::Pixel> row;
    for (const int identifier : {2018, 3, 40, 7, 3000})
        row.push_back(0xFF000000 | bitmaps::colour_of(identifier));
    index.add_row(0, row);
    table.load(7, data::table_column(data::column::city_x), "10");
    table.load(7, data::table_column(data::column::city_y), "20");
    const auto next = [&](int after) {
        return map::next_lacking(table, map::Mode::ville, "sea", index, after).value_or(-1);
    };
    EXPECT_EQ(map::lacking_positions(table, map::Mode::ville, "sea", &index), 3);
    EXPECT_EQ(next(0), 3);
    EXPECT_EQ(next(3), 40);
    EXPECT_EQ(next(40), 2018);
    EXPECT_EQ(next(2018), 3);
    for (const int province : {40, 2018})
        table.load(province, data::table_column(data::column::terrain), "sea");
    EXPECT_EQ(next(3), 3) << "the only one is its own next";
    table.load(3, data::table_column(data::column::terrain), "sea");
    EXPECT_EQ(next(3), -1);
}

} // namespace
