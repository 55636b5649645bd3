#include "data/run_time_error.h"
#include "map/bitmap_file.h"
#include "map/run_lengths.h"
#include "support/bitmaps.h"

#include <gtest/gtest.h>

namespace {

TEST(BitmapFile, PixelsBeginBehindThePaletteWhereTheFileDoesNotSay) {
    const std::string masks =
        bitmaps::number(0xF800, 4) + bitmaps::number(0x7E0, 4) + bitmaps::number(0x1F, 4);
    const bitmaps::Format formats[] = {
        {8, 2, 1, "", 2}, {8, 2, 4, "", 7}, {8, 2, 8, "", 256}, {8, 2, 24}, {8, 2, 16, masks},
    };
    for (const auto& format : formats) {
        std::string bytes = bitmaps::noise(format);
        const auto said = map::read_bitmap_layout(bytes, bytes.size());
        ASSERT_TRUE(said);
        for (const char offset : {'\0', '\x20'}) { // a byte of the header is no offset, either
            bytes.replace(10, 4, offset + std::string(3, '\0'));
            const auto unsaid = map::read_bitmap_layout(bytes, bytes.size());
            ASSERT_TRUE(unsaid);
            EXPECT_EQ(unsaid->pixels_begin, said->pixels_begin) << format.bits_per_pixel;
        }
    }
}

/// Returns a bitmap of 4 x 3 pixels whose run-length pixels are the bytes.
std::string with_runs(int bits_per_pixel, std::string_view runs) {
    std::string bytes = bitmaps::header({4, 3, bits_per_pixel, "", 2});
    bytes.replace(30, 4, bitmaps::number(bits_per_pixel == 8 ? 1 : 2, 4));
    return bytes.append(runs);
}

TEST(BitmapFile, RunLengthsReachTheLastRow) {
    using namespace std::string_view_literals;
    struct Row {
        int bits_per_pixel;
        std::string_view runs;
        const char* ends_in; // empty: the pixels are complete
    };
    const Row rows[] = {
        {8, "\4\1\0\0\4\1\0\0\4\1\0\1"sv, ""},
        {8, "\4\1\0\0\4\1\0\0\4\1\0\0"sv, ""},
        {8, "\4\1\0\0\4\1\0\0\4\1"sv, ""},
        {8, "\0\1"sv, ""}, // says itself that the rest is left out
        {8, "\0\2\0\2\0\4abcd"sv, ""},
        {8, "\0\2\0\2\0\3abc"sv, "row 3 of the file, 3 rows"},
        {8, "\0\2\0\2\4\1"sv, ""},
        {8, "\4\1\0\0\4\1\0\0\3\1"sv, "row 3 of the file, 3 rows"},
        {8, "\4\1\0\0\4\1"sv, "row 2"},
        {8, "\4\1\0\0\4\1\0\0\0\4abc"sv, "row 3"},
        {8, "\0\2\0"sv, "row 1"},
        {8, ""sv, "row 1"},
        {4, "\0\2\0\2\0\4ab"sv, ""},
        {4, "\0\2\0\2\0\4a"sv, "row 3"},
        {4, "\0\3ab\0\0\0\3ab\0\0\0\4ab"sv, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        const std::string bytes = with_runs(row.bits_per_pixel, row.runs);
        std::string problem;
        try {
            map::check_run_lengths(bytes);
        } catch (const data::RunTimeError& error) {
            problem = error.place().in_english();
        }
        EXPECT_EQ(problem.empty(), *row.ends_in == 0) << problem;
        EXPECT_NE(problem.find(row.ends_in), std::string::npos) << problem;
    }
}

} // namespace
