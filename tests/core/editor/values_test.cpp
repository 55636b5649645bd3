#include "editor/coded_choices.h"
#include "editor/merged_values.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using data::FieldNumber;
using editor::fields;

constexpr auto treaty_spain = data::field_number(data::column::treaty_spain);
constexpr auto treaty_portugal = data::field_number(data::column::treaty_portugal);

struct Provinces {
    data::ProvinceTable table;
    editor::Selection selection;

    editor::MergedValue merged(FieldNumber number) const {
        return merged_value(table, selection, number);
    }
    std::string shown(FieldNumber number) const {
        return shown_value(table, selection, fields[number]).text;
    }
};

TEST(MergedValues, OfThreeProvinces) {
    using enum editor::MergedValue::State;
    const struct {
        std::vector<const char*> cells;
        editor::MergedValue merged;
    } cases[] = {
        {{"catholic", "catholic", "catholic"}, {common, "catholic"}},
        {{"catholic", "catholic", "sunni"}, {differing}},
        {{"Coastal", "coastal", "COASTAL"}, {common, "Coastal"}},
        {{"\xC9vora", "\xE9vora", "\xE9VORA"}, {common, "\xC9vora"}},
        {{"", "", ""}, {common}},
        {{"", "x", "x"}, {differing}},
        {{"a", "b", "a"}, {differing}},
        {{"Premier", "PREMIER", "x"}, {common, "x"}},
        {{"premier", "Premier", "premier"}, {none}},
        {{"x", "x", "premier"}, {differing}},
        {{"Null", "null", "NULL"}, {differing}},
        {{"premier", "null", "null"}, {differing}},
    };
    for (const auto& each : cases) {
        Provinces provinces;
        for (std::size_t n = 0; n < each.cells.size(); ++n)
            provinces.table.load(static_cast<int>(n) + 5, {1}, each.cells[n]);
        EXPECT_EQ(provinces.merged({2}), editor::MergedValue{none}) << "nothing is selected";
        provinces.selection.apply("5-7");
        EXPECT_EQ(provinces.merged({2}), each.merged) << each.cells[0] << each.cells[2];
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
