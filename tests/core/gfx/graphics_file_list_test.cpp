#include "data/run_time_error.h"
#include "gfx/graphics_file_list.h"

#include <gtest/gtest.h>

namespace {

using gfx::GraphicsFileList;

/// Returns a list of records whose set names are the letters.
GraphicsFileList list_of(std::string_view letters) {
    GraphicsFileList list;
    for (const char letter : letters)
        list.append({.kind = "ville", .path = "p", .set_name = std::string(1, letter)});
    return list;
}

std::string saved(const GraphicsFileList& list) {
    std::string letters;
    for (const auto& file : list.saved())
        letters += file.set_name;
    return letters;
}

TEST(GraphicsFileList, TakesOutByName) {
    struct Removal {
        const char* before;
        const char* name;
        const char* after;
        int count;
    };
    constexpr Removal removals[] = {
        {"ABC", "B", "AC", 2},
        {"ABAC", "A", "BC", 3},  // both go, the count falls by one
        {"AABC", "A", "ABC", 3}, // the second of two neighbours stays
        {"ABC", "b", "ABC", 2},  // names are compared exactly
        {"ABC", "", "ABC", 2},
        {"", "", "", -1},
        {"ABCDEFGHIJKLMNOPQRSTUVWXY", "Y", "ABCDEFGHIJKLMNOPQRSTUVWX", 24}, // the last never goes
        {"ABCDEFGHIJKLMNOPQRSTUVWXY", "A", "BCDEFGHIJKLMNOPQRSTUVWXY", 24},
    };
    for (const auto& removal : removals) {
        auto list = list_of(removal.before);
        list.remove(removal.name);
        EXPECT_EQ(saved(list), removal.after) << removal.before << " - " << removal.name;
        EXPECT_EQ(list.count(), removal.count) << removal.before << " - " << removal.name;
    }
}

TEST(GraphicsFileList, AppendsWhereTheCountStands) {
    auto list = list_of("ABC");
    list.remove("x");
    list.append({.kind = "port", .path = "p", .set_name = "D"});
    EXPECT_EQ(saved(list), "ABD");
}

TEST(GraphicsFileList, TheTwentySixthRecordAndOneBeforeTheFirstFail) {
    auto full = list_of("ABCDEFGHIJKLMNOPQRSTUVWXY");
    EXPECT_EQ(saved(full), "ABCDEFGHIJKLMNOPQRSTUVWX");
    EXPECT_THROW(full.append({}), data::RunTimeError);
    GraphicsFileList below;
    below.remove("");
    EXPECT_THROW(below.append({}), data::RunTimeError);
}

} // namespace
