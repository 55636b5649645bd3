#include "data/run_time_error.h"
#include "gfx/sprite_tables.h"

#include <gtest/gtest.h>

namespace {

using data::ErrorNumber;
using gfx::SpriteKind;
using gfx::SpriteTables;

/// Returns the rows that hold anything as "path|set|x,y|frames" lines, the count before them.
std::string dump(const gfx::SpriteTable& table) {
    std::string text = std::to_string(table.count) + ":";
    for (const auto& row : table.rows) {
        if (row.bitmap_path.empty() && row.origin_x == 0 && row.origin_y == 0 && row.frames == 0)
            continue;
        text += " " + row.bitmap_path + "|" + row.set_name + "|" + std::to_string(row.origin_x) +
                "," + std::to_string(row.origin_y) + "|" + std::to_string(row.frames);
    }
    return text;
}

struct Reading {
    const char* what;
    const char* bytes;
    const char* rows;
};

constexpr Reading readings[] = {
    {"usual", "Bitmap = \"a.bmp\"\r\norigin = { x = 12 y = 30 }\r\nframes = 4\r\n",
     "1: G\\bmp\\a.bmp|s|12,30|4"},
    {"other order", "frames=4\r\nBitmap=\"a.bmp\"\r\norigin={x=12 y=30}",
     "1: G\\bmp\\a.bmp|s|12,30|4"},
    {"capitals without blanks", "BITMAP=\"A.bmp\"\rORIGIN{X=12,Y=30}\rFRAMES=4",
     "1: G\\bmp\\A.bmp|s|12,30|4"},
    {"one line, keys inside words", "# theframes= 2 mybitmap \"a.bmp\" originX=1,Y=-2 end",
     "1: G\\bmp\\a.bmp|s|1,-2|2"},
    {"line feeds alone", "Bitmap \"a\"\norigin x=1 y=2\nframes=3\n", "1: G\\bmp\\a|s|1,2|3"},
    {"y before x", "Bitmap\"a\"\r\norigin y = 2 x = 1\r\nframes=3", "1: G\\bmp\\a|s|1,2|3"},
    {"halves to even", "Bitmap\"a\"\r\norigin x=2.5 y=3.5\r\nframes=0.5", "1: G\\bmp\\a|s|2,4|0"},
    {"largest numbers", "Bitmap\"a\"\r\norigin x=-32768 y=32767\r\nframes=32767.4",
     "1: G\\bmp\\a|s|-32768,32767|32767"},
    {"no numbers", "Bitmap\"\"\r\norigin x=a y=\r\nframes= {", "1: G\\bmp\\|s|0,0|0"},
    {"x without its letter", "Bitmap\"a\"\r\na=7 origin y=2\r\nframes=3", "1: G\\bmp\\a|s|7,2|3"},
    {"no equals sign at all", "Bitmap\"a\"\r\n 5 origin x y\r\n3 frames", "1: G\\bmp\\a|s|5,5|3"},
    {"equals sign before the key only", "Bitmap\"a\"\r\norigin x=1 y=2\r\n4 = frames",
     "1: G\\bmp\\a|s|1,2|4"},
    {"quotes before the key are none of its", "\"x\" Bitmap \"a\" \"b\"", "0: G\\bmp\\a|s|0,0|0"},
    {"two of three keys", "Bitmap\"a\"\r\nframes=3", "0: G\\bmp\\a|s|0,0|3"},
    {"a key repeated counts twice", "Bitmap\"a\"\r\nBitmap\"b\"\r\nframes=3\r\norigin x=1 y=2",
     "1: G\\bmp\\b|s|0,0|3 ||1,2|0"},
    {"two sprites",
     "Bitmap\"a\"\r\norigin x=1 y=2\r\nframes=3\r\nframes=6\r\nBitmap\"b\"\r\norigin x=4 y=5",
     "2: G\\bmp\\a|s|1,2|3 G\\bmp\\b|s|4,5|6"},
    {"nothing", "", "0:"},
};

TEST(SpriteTables, ReadsKeysAnywhere) {
    for (const auto& reading : readings) {
        SpriteTables tables;
        tables.read_descriptor(reading.bytes, "ViLLe", "s", "G");
        EXPECT_EQ(dump(tables.of(SpriteKind::ville)), reading.rows) << reading.what;
    }
}

TEST(SpriteTables, ReadsAnyBytes) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 7 % 256);
    SpriteTables tables;
    tables.read_descriptor(bytes, "port", "s", "G");
    EXPECT_EQ(dump(tables.of(SpriteKind::port)), "0:");
}

TEST(SpriteTables, KnowsItsKindsInAnyCase) {
    constexpr std::pair<const char*, SpriteKind> kinds[] = {
        {"MANUF", SpriteKind::manuf},
        {"ville", SpriteKind::ville},
        {"ARM\xC9"
         "ES",
         SpriteKind::armees},
        {"Port", SpriteKind::port},
    };
    for (const auto& [word, kind] : kinds) {
        SpriteTables tables;
        tables.read_descriptor("Bitmap\"a\"", word, "s", "");
        EXPECT_EQ(dump(tables.of(kind)), "0: \\bmp\\a|s|0,0|0") << word;
    }
}

TEST(SpriteTables, UnknownKindIsReadWithoutEffect) {
    SpriteTables tables;
    tables.read_descriptor("Bitmap\"a\" origin x=1 y=1 frames=1", "armees", "s", "G");
    for (const auto& kind : gfx::sprite_kinds)
        EXPECT_EQ(dump(tables.of(kind.kind)), "0:");
    EXPECT_THROW(tables.read_descriptor("frames=99999", "armees", "s", "G"), data::RunTimeError);
}

TEST(SpriteTables, UnfinishedSpriteIsOverwrittenByTheNextDescriptor) {
    SpriteTables tables;
    tables.read_descriptor("Bitmap\"a\"\r\nframes=9", "manuf", "first", "G");
    tables.read_descriptor("Bitmap\"b\"\r\norigin x=1 y=2\r\n", "manuf", "second", "G");
    EXPECT_EQ(dump(tables.of(SpriteKind::manuf)), "0: G\\bmp\\b|second|1,2|9");
    tables.read_descriptor("frames=1 Bitmap\"c\" origin x=3 y=4", "manuf", "third", "H");
    EXPECT_EQ(dump(tables.of(SpriteKind::manuf)), "1: H\\bmp\\c|third|3,4|1");
}

struct Fault {
    const char* bytes;
    ErrorNumber number;
    const char* place;
    const char* rows; // what was read before it
};

constexpr Fault faults[] = {
    {"\r\nBitmap = a.bmp", ErrorNumber::invalid_procedure_call, "line 2", "0:"},
    {"frames=2\r\n\r\nBitmap = \"a.bmp", ErrorNumber::invalid_procedure_call, "line 3",
     "0: ||0,0|2"},
    {"\"a.bmp\" Bitmap", ErrorNumber::invalid_procedure_call, "line 1", "0:"},
    {"origin x=1 y=32768", ErrorNumber::overflow, "line 1: 32768", "0:"},
    {"origin x=-32769 y=1", ErrorNumber::overflow, "line 1: -32769", "0:"},
    {"frames=32767.5", ErrorNumber::overflow, "line 1: 32767.5", "0:"},
};

TEST(SpriteTables, FaultsNameTheirLineAndKeepWhatWasRead) {
    for (const auto& fault : faults) {
        SpriteTables tables;
        try {
            tables.read_descriptor(fault.bytes, "ville", "s", "G");
            ADD_FAILURE() << fault.bytes;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), fault.number) << fault.bytes;
            EXPECT_TRUE(error.place().in_english().starts_with(fault.place)) << error.what();
        }
        EXPECT_EQ(dump(tables.of(SpriteKind::ville)), fault.rows) << fault.bytes;
    }
}

TEST(SpriteTables, SixSpritesForFourRows) {
    std::string bytes;
    for (int i = 0; i < 6; ++i)
        bytes += "Bitmap\"" + std::to_string(i) + "\"\r\norigin x=1 y=1\r\nframes=1\r\n";
    SpriteTables tables;
    try {
        tables.read_descriptor(bytes, "manuf", "s", "");
        ADD_FAILURE();
    } catch (const data::RunTimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::subscript_out_of_range);
        EXPECT_EQ(error.place().in_english(),
                  "line 13: sprite 5 of its kind, at most 4 were expected");
    }
    EXPECT_EQ(dump(tables.of(SpriteKind::manuf)),
              "4: \\bmp\\0|s|1,1|1 \\bmp\\1|s|1,1|1 \\bmp\\2|s|1,1|1 \\bmp\\3|s|1,1|1");
}

struct TakingOut {
    const char* loaded; // a letter for each row: the set's name
    const char* taken;
    const char* left;
};

TEST(SpriteTables, TakesRowsOut) {
    // Armies admit 4 sets: what lies in the rows behind is moved up once and never looked at.
    constexpr TakingOut cases[] = {
        {"ABCD", "B", "ACD;;"},  {"ABCDE", "A", "BCDEE"}, {"AABC", "A", "ABC;;"},
        {"ABAC", "A", "BC;;"},   {"ABCD", "x", "ABCD;"},  {"AB", "B", "A;;"},
        {"ABCDE", "E", "ABCDE"},
    };
    for (const auto& example : cases) {
        SpriteTables tables;
        auto& rows = tables.of(SpriteKind::armees).rows;
        for (std::size_t i = 0; example.loaded[i] != '\0'; ++i)
            rows[i].set_name = example.loaded[i];
        tables.take_rows_out(SpriteKind::armees, example.taken);
        std::string left;
        for (std::size_t i = 0; left.size() < std::string(example.left).size(); ++i)
            left += rows[i].set_name.empty() ? ";" : rows[i].set_name;
        EXPECT_EQ(left, example.left) << example.loaded << " without " << example.taken;
    }
}

} // namespace
