#include "editor/coded_choices.h"
#include "editor/merged_values.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using data::FieldNumber;

constexpr auto treaty_spain = data::field_number(data::column::treaty_spain);
constexpr auto treaty_portugal = data::field_number(data::column::treaty_portugal);

struct Provinces {
    data::ProvinceTable table;
    editor::Selection selection;

    std::string merged(FieldNumber number) const { return merged_values(table, selection)[number]; }
    std::string shown(FieldNumber number) const { return shown_values(table, selection)[number]; }
};

TEST(MergedValues, OfThreeProvinces) {
    const struct {
        std::vector<const char*> cells;
        const char* merged;
    } cases[] = {
        {{"catholic", "catholic", "catholic"}, "catholic"},
        {{"catholic", "catholic", "sunni"}, ""},
        {{"Coastal", "coastal", "COASTAL"}, "Coastal"},
        {{"\xC9vora", "\xE9vora", "\xE9VORA"}, "\xC9vora"},
        {{"", "x", "x"}, ""},
        {{"a", "b", "a"}, ""},
    };
    for (const auto& each : cases) {
        Provinces provinces;
        for (std::size_t n = 0; n < each.cells.size(); ++n)
            provinces.table.load(static_cast<int>(n) + 5, {1}, each.cells[n]);
        EXPECT_EQ(provinces.merged({2}), "") << "nothing is selected";
        provinces.selection.apply("5-7");
        EXPECT_EQ(provinces.merged({2}), each.merged);
    }
}

TEST(CodedChoices, ATreatyClaimedByBothIsNeitherOnes) {
    Provinces provinces;
    EXPECT_EQ(provinces.shown(treaty_spain), "") << "nothing is selected";
    provinces.selection.apply("5");
    for (const FieldNumber number : {treaty_spain, treaty_portugal})
        changement(provinces.table, provinces.selection, "1", number);
    EXPECT_EQ(provinces.shown(treaty_spain), "0");
}

} // namespace
