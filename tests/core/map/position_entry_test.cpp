#include "data/run_time_error.h"
#include "map/position_entry.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace {

using map::Button;
using map::Mode;

/// The sea column and the positions' columns of the province file.
constexpr int sea = 37;

struct World {
    data::ProvinceTable provinces;
    map::PortPlacement port;
    map::Maps maps;

    void click(Mode mode, Button button, int shift, int province, double x = 120,
               std::int16_t y = 45) {
        map::enter_position(mode, {button, shift, x, y, province}, maps, port, provinces);
    }
    std::string cell(int province, int file_column) const {
        return provinces.cell(province, data::table_column(data::FileColumn{file_column}));
    }
    void set(int province, int file_column, std::string_view text) {
        provinces.load(province, data::table_column(data::FileColumn{file_column}), text);
    }
    /// Returns the file columns of the row that hold a text, with it: "29=120 30=45".
    std::string filled(int province) const {
        std::ostringstream text;
        for (int column = 2; column <= 57; ++column) {
            if (!cell(province, column).empty())
                text << (text.str().empty() ? "" : " ") << column << '=' << cell(province, column);
        }
        return text.str();
    }
};

TEST(PositionEntry, WritesTheColumnsOfTheMode) {
    struct Row {
        Mode mode;
        Button button;
        int shift;
        const char* filled;
    };
    const Row rows[] = {
        {Mode::ville, Button::left, 0, "29=120 30=45"},
        {Mode::ville, Button::left, 7, "29=120 30=45"},
        {Mode::armees, Button::left, 2, "31=120 32=45"},
        {Mode::manuf, Button::left, 4, "35=120 36=45"},
        {Mode::dessin, Button::left, 0, "38=120 39=45 40=1"},
        {Mode::dessin, Button::left, 1, "41=120 42=45 43=1"},
        {Mode::dessin, Button::left, 2, "44=120 45=45 46=1"},
        {Mode::dessin, Button::left, 3, "47=120 48=45 49=1"},
        {Mode::port, Button::left, 1, "33=120 34=45"},
        {Mode::ville, Button::right, 3, "29=-1 30=-1"},
        {Mode::armees, Button::right, 0, "31=-1 32=-1"},
        {Mode::manuf, Button::right, 0, "35=-1 36=-1"},
        {Mode::dessin, Button::right, 0, "38=-1 39=-1"},
        {Mode::dessin, Button::right, 3, "47=-1 48=-1"},
        {Mode::port, Button::right, 5, "33=-1 34=-1 37=0"},
        {Mode::ville, Button::other, 0, ""},
        {Mode::port, Button::other, 0, ""},
        {Mode::dessin, Button::left, 4, ""},
        {Mode::dessin, Button::right, 6, ""},
        {Mode::normal, Button::left, 0, ""},
        {Mode::normal, Button::right, 0, ""},
    };
    for (const auto& row : rows) {
        World world;
        world.click(row.mode, row.button, row.shift, 12);
        EXPECT_EQ(world.filled(12), row.filled);
        EXPECT_EQ(world.provinces.has_unsaved_changes(), *row.filled != 0);
    }
}

TEST(PositionEntry, AddsTheOffsets) {
    World world;
    world.maps.x_offset = 10.25;
    world.maps.y_offset = -50;
    world.click(Mode::ville, Button::left, 0, 1);
    EXPECT_EQ(world.filled(1), "29=130.25 30=-5");
    world.maps.x_offset = -0.5;
    world.click(Mode::ville, Button::left, 0, 1, 120.5);
    EXPECT_EQ(world.cell(1, 29), "120");
    world.maps.x_offset = 1e15;
    world.click(Mode::ville, Button::left, 0, 1, 150);
    EXPECT_EQ(world.cell(1, 29), "1000000000000150");
}

TEST(PositionEntry, StepsTheVariant) {
    struct Row {
        std::string before;
        std::string after;
    };
    for (const auto& row : std::vector<Row>{{"", "1"},
                                            {"0", "1"},
                                            {"6", "7"},
                                            {"7", "0"},
                                            {"9", "0"},
                                            {"6.5", "7.5"},
                                            {"-100", "-99"},
                                            {"x", "1"},
                                            {"3x", "4"}}) {
        World world;
        world.set(5, 43, row.before);
        world.click(Mode::dessin, Button::left, map::shift_key, 5);
        EXPECT_EQ(world.cell(5, 43), row.after) << row.before;
        world.click(Mode::dessin, Button::right, map::shift_key, 5);
        EXPECT_EQ(world.filled(5), "41=-1 42=-1 43=" + row.after);
    }
    World world;
    world.set(5, 40, "0");
    for (int i = 0; i < 8; ++i)
        world.click(Mode::dessin, Button::left, 0, 5);
    EXPECT_EQ(world.cell(5, 40), "0");
}

TEST(PositionEntry, PortWaitsForItsSeaAcrossModes) {
    World world;
    world.click(Mode::port, Button::left, 0, 7);
    EXPECT_EQ(world.port.stage, 1);
    world.click(Mode::ville, Button::left, 0, 8);
    world.click(Mode::port, Button::left, 0, 900, 500, 500);
    EXPECT_EQ(world.port.stage, 0);
    EXPECT_EQ(world.filled(7), "33=120 34=45 37=900");
    EXPECT_EQ(world.filled(900), "");
    world.click(Mode::port, Button::left, 0, 9);
    EXPECT_EQ(world.port.stage, 1) << "the next port begins";
    world.click(Mode::port, Button::right, 0, 7);
    EXPECT_EQ(world.filled(7), "33=-1 34=-1 37=0");
    world.click(Mode::port, Button::left, 0, 10);
    EXPECT_EQ(world.cell(9, sea), "") << "the right button began anew";
    EXPECT_EQ(world.filled(10), "33=120 34=45");
}

TEST(PositionEntry, WritesNothingWhenItFails) {
    struct Row {
        int province;
        double x_offset;
        std::int16_t y_offset;
        std::int16_t press_y;
        data::ErrorNumber number;
        std::string place;
    };
    const Row rows[] = {
        {12, INFINITY, 0, 1, data::ErrorNumber::overflow, "province 12, City XPos"},
        {12, 0, 32767, 1, data::ErrorNumber::overflow, "province 12, City YPos"},
        {12, 0, -32768, -1, data::ErrorNumber::overflow, "province 12, City YPos"},
        {2019, 0, 0, 0, data::ErrorNumber::subscript_out_of_range, "province 2019"},
    };
    for (const auto& row : rows) {
        World world;
        world.maps.x_offset = row.x_offset;
        world.maps.y_offset = row.y_offset;
        try {
            world.click(Mode::ville, Button::left, 0, row.province, 1, row.press_y);
            ADD_FAILURE() << row.place;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), row.number);
            EXPECT_NE(error.place().in_english().find(row.place), std::string::npos)
                << error.what();
        }
        EXPECT_FALSE(world.provinces.has_unsaved_changes());
    }
    World world;
    world.maps.y_offset = 32767;
    world.click(Mode::ville, Button::left, 0, 2018, 0, 0);
    EXPECT_EQ(world.filled(2018), "29=0 30=32767");
    EXPECT_NO_THROW(world.click(Mode::ville, Button::other, 0, 3000)) << "nothing to do";

    world.click(Mode::port, Button::left, 0, 7, 1, 0);
    EXPECT_THROW(world.click(Mode::port, Button::left, 0, 4095), data::RunTimeError);
    EXPECT_EQ(world.port.stage, 1) << "the sea is still awaited";
}

} // namespace
