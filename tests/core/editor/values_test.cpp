#include "editor/coded_choices.h"
#include "editor/fields.h"
#include "editor/merged_values.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using data::FieldNumber;
using data::table_column;
using editor::fields;

constexpr auto goods = data::field_number(data::column::goods);
constexpr auto mine_flag = data::field_number(data::column::mine_flag);
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
    std::string cell(int province, FieldNumber number) const {
        return table.cell(province, table_column(number));
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

TEST(CodedChoices, GoodsSetTheMineFlag) {
    Provinces provinces;
    provinces.selection.apply("5;6");
    choose(provinces.table, provinces.selection, fields[goods], "Gold");
    EXPECT_EQ(provinces.cell(5, goods), "Gold");
    EXPECT_EQ(provinces.cell(6, mine_flag), "1");
    choose(provinces.table, provinces.selection, fields[goods], "fish");
    EXPECT_EQ(provinces.cell(6, mine_flag), "0");
}

TEST(CodedChoices, TreatyWritesAndShowsTwoFields) {
    Provinces provinces;
    EXPECT_EQ(provinces.shown(treaty_spain), "") << "nothing is selected";
    provinces.selection.apply("5");
    const struct {
        const char* code;
        const char* spain;
        const char* portugal;
    } cases[] = {{"ESPAGNE", "1", "0"}, {"PORTUGAL", "0", "1"}, {"0", "0", "0"}, {"", "0", "0"}};
    for (const auto& each : cases) {
        choose(provinces.table, provinces.selection, fields[treaty_spain], each.code);
        EXPECT_EQ(provinces.cell(5, treaty_spain), each.spain) << each.code;
        EXPECT_EQ(provinces.cell(5, treaty_portugal), each.portugal) << each.code;
        if (*each.code != '\0') {
            EXPECT_EQ(provinces.shown(treaty_spain), each.code);
        }
    }
    for (const FieldNumber number : {treaty_spain, treaty_portugal})
        changement(provinces.table, provinces.selection, "1", number);
    EXPECT_EQ(provinces.shown(treaty_spain), "0") << "claimed by both";
}

TEST(NumericFields, EntryAndSlider) {
    const auto& ferocity = editor::numeric_fields[0];
    const auto& efficiency = editor::numeric_fields[1];
    EXPECT_EQ(checked_entry(efficiency, "1,5"), "1.5");
    EXPECT_EQ(checked_entry(efficiency, "2,5"), "2.5"); // read as 2, which is in range
    EXPECT_EQ(checked_entry(efficiency, "2.5"), std::nullopt);
    EXPECT_EQ(checked_entry(ferocity, "-1"), std::nullopt);
    EXPECT_EQ(checked_entry(ferocity, "5"), "5");
    EXPECT_EQ(checked_entry(ferocity, "abc"), "abc");
    EXPECT_EQ(slider_position_entered(efficiency, "2.5"), 25);
    EXPECT_EQ(slider_position_entered(efficiency, "0.25"), 2); // half to even
    EXPECT_EQ(slider_position_shown(ferocity, "2.7"), 10);
    EXPECT_EQ(slider_position_shown(ferocity, "-0.1"), -1);
    EXPECT_EQ(slider_position_shown(ferocity, "abc"), 0);
    EXPECT_GT(slider_position_shown(ferocity, std::string(500, '9')), 20);
    EXPECT_EQ(slider_text(ferocity, 10), "2.5");
    EXPECT_EQ(slider_text(efficiency, 20), "2");
    EXPECT_EQ(&editor::numeric_field(efficiency.number), &efficiency);
    EXPECT_THROW(editor::numeric_field(goods), std::logic_error);
}

} // namespace
