#include "shell/assignment.h"
#include "shell/table_comparison.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace {

TEST(TableComparison, ListsTheCellsThatFilesKeep) {
    data::ProvinceTable before;
    data::ProvinceTable now;
    before.write(9, {0}, "same");
    now.write(9, {0}, "same");
    before.write(9, {18}, "wi\nne");
    now.write(9, {55}, "in no file");
    now.write(7, {54}, "5");
    now.write(9, {1}, "inland");
    const auto differences = shell::compare(before, now);
    std::string lines;
    for (const auto& difference : differences)
        lines += shell::printed_line(difference) + '\n';
    EXPECT_EQ(lines, "province 7, 56 (Extra River Desc Link 3): \"\" -> \"5\"\n"
                     "province 9, 3 (QEV name): \"\" -> \"inland\"\n"
                     "province 9, 20 (Goods): \"wi ne\" -> \"\"\n");
    EXPECT_EQ(shell::differing_provinces(before, now), 2);
}

TEST(Assignment, NamesAColumnByNumberOrByAHeaderThatIsUnique) {
    const struct {
        const char* text;
        int column;
        const char* value;
    } good[] = {{"20=gold", 20, "gold"},
                {"goods=a=b", 20, "a=b"},
                {"2=", 2, ""},
                {"56= 5", 56, " 5"},
                {"53=Paris", 53, "Paris"},
                {" Terrain =1", 14, "1"},
                {"Natives Tolerance value=3", 28, "3"},
                {"manufactory YPos=7", 36, "7"}};
    for (const auto& each : good) {
        const auto assignment = shell::read_assignment(each.text);
        EXPECT_EQ(assignment.column.number, each.column) << each.text;
        EXPECT_EQ(assignment.value, each.value) << each.text;
    }
    const std::string bad[] = {"",         "20",        "=x",       " =x",          "1=x",
                               "57=x",     "020=x",     "Id=x",     "Good=x",       "Terrain x=5",
                               "Name=a;b", "Name=a\nb", "Name=a\r", {"Name=a\0", 7}};
    for (const auto& text : bad)
        EXPECT_THROW(shell::read_assignment(text), std::invalid_argument) << text;
}

} // namespace
