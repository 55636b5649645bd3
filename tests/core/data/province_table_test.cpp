#include "data/province_file.h"
#include "data/province_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

using data::TableColumn;

std::vector<std::string> changes_of(const data::ProvinceTable& table) {
    std::vector<std::string> changes;
    for (const auto& change : table.changes())
        changes.push_back(std::to_string(change.province) + "," +
                          std::to_string(change.column.index) + ":" + change.before);
    std::sort(changes.begin(), changes.end());
    return changes;
}

using Texts = std::vector<std::string>;

TEST(ProvinceTable, ChangesAreWhatDiffersFromTheFile) {
    data::ProvinceTable table;
    table.load(5, {0}, "old");
    EXPECT_EQ(changes_of(table), Texts());
    table.write(5, {0}, "new");
    table.write(5, {0}, "newer");
    table.write(6, {1}, "x");
    table.write(7, {1}, "");
    EXPECT_EQ(changes_of(table), (Texts{"5,0:old", "6,1:"}));
    table.write(5, {0}, "old");
    EXPECT_EQ(changes_of(table), Texts{"6,1:"}) << "written back by hand";
    table.write(5, {0}, "new");
    table.load(6, {1}, "y");
    EXPECT_EQ(changes_of(table), Texts{"5,0:old"}) << "a file supplied the other";
    table.mark_saved();
    EXPECT_FALSE(table.has_unsaved_changes());
    table.write(5, {0}, "old");
    EXPECT_EQ(changes_of(table), Texts{"5,0:new"}) << "against the saved file";
}

TEST(ProvinceTable, AnOpenedCopyIsAllChanges) {
    data::ProvinceTable table;
    table.load(5, {0}, "old");
    data::ProvinceTable other = table;
    other.write(5, {0}, "new");
    read_provinces(write_provinces(other), table, data::Source::copy);
    EXPECT_EQ(table.cell(5, {0}), "new");
    EXPECT_EQ(changes_of(table), Texts{"5,0:old"});
    read_provinces(write_provinces(other), table);
    EXPECT_FALSE(table.has_unsaved_changes()) << "read as the file it is";
}

TEST(ProvinceTable, ChangesSurviveRandomWork) {
    std::mt19937 random(11);
    data::ProvinceTable table;
    data::ProvinceTable file; // what a file last gave or took
    for (int step = 0; step < 20'000; ++step) {
        const int province = static_cast<int>(random() % 7);
        const TableColumn column{static_cast<int>(random() % 3)};
        const std::string text(random() % 3, 'x');
        if (random() % 4 == 0) {
            table.load(province, column, text);
            file.load(province, column, text);
        } else {
            table.write(province, column, text);
        }
        std::size_t differing = 0;
        for (const auto& change : table.changes()) {
            EXPECT_EQ(change.before, file.cell(change.province, change.column));
            EXPECT_NE(change.before, table.cell(change.province, change.column));
        }
        for (int row = 0; row < 7; ++row) {
            for (int index = 0; index < 3; ++index)
                differing += table.cell(row, {index}) != file.cell(row, {index}) ? 1 : 0;
        }
        ASSERT_EQ(table.changes().size(), differing);
    }
}

} // namespace
