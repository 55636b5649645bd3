#include "editor/coded_choices.h"
#include "editor/differing_values.h"
#include "editor/merged_values.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using data::FieldNumber;
using editor::fields;
using enum editor::MergedValue::State;

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

TEST(DifferingValues, AreCountedAndTheThreeMostFrequentTold) {
    Provinces provinces;
    const auto load = [&](FieldNumber number, const std::vector<const char*>& cells) {
        int province = 5;
        for (const char* cell : cells)
            provinces.table.load(province++, data::table_column(number), cell);
        provinces.selection.apply("5-" + std::to_string(province - 1));
        const auto values = differing_values(provinces.table, provinces.selection, fields[number]);
        std::string told = std::to_string(values.count);
        for (const auto& [text, count] : values.most_frequent)
            told += "|" + text + "*" + std::to_string(count);
        return told;
    };
    EXPECT_EQ(load({1}, {"z", "\xC9", "b", "a", "\xE9", "Z", "B", "z", ""}), "5|z*3|b*2|\xC9*2");
    EXPECT_EQ(load({1}, {"null", "null"}), "1|null*2");
    load(treaty_portugal, {"1", "1", "0", "1.0"});
    EXPECT_EQ(load(treaty_spain, {"1", "", "", "x"}), "2|0*2|PORTUGAL*2");
    EXPECT_EQ(provinces.shown(treaty_spain), "0");
}

TEST(CodedChoices, ATreatyDiffersWhereTheShownOneIsNotEveryones) {
    const struct {
        std::array<const char*, 4> cells; // Spain and Portugal of two provinces
        editor::MergedValue shown;
    } cases[] = {
        {{"1", "0", "1", ""}, {common, "ESPAGNE"}},
        {{"1", "1", "0", "0"}, {common, "0"}},
        {{"1", "0", "0", "0"}, {differing, "0"}},
        {{"1", "0", "1.0", "0"}, {differing, "0"}}, // of differing texts no number is read
    };
    for (const auto& each : cases) {
        Provinces provinces;
        provinces.selection.apply("5;6");
        for (const int n : {0, 1}) {
            const auto place = static_cast<std::size_t>(2 * n);
            provinces.table.load(5 + n, data::table_column(treaty_spain), each.cells.at(place));
            provinces.table.load(5 + n, data::table_column(treaty_portugal),
                                 each.cells.at(place + 1));
        }
        EXPECT_EQ(shown_value(provinces.table, provinces.selection, fields[treaty_spain]),
                  each.shown)
            << each.cells[0] << each.cells[2];
    }
}

TEST(CodedChoices, TellInHowManyProvincesTheyChangedSomething) {
    Provinces provinces;
    auto& [table, selection] = provinces;
    const auto goods = data::field_number(data::column::goods);
    EXPECT_EQ(changement(table, selection, "x", {1}), 0) << "nothing is selected";
    selection.apply("5-7");
    EXPECT_EQ(changement(table, selection, "x", {1}), 3);
    EXPECT_EQ(changement(table, selection, "X", {1}), 3) << "letter case is a change";
    table.load(6, {0}, "y");
    EXPECT_EQ(changement(table, selection, "X", {1}), 1);
    EXPECT_EQ(changement(table, selection, "X", {1}), 0);
    EXPECT_EQ(choose(table, selection, fields[goods], "gold"), 3);
    table.load(5, data::table_column(data::column::mine_flag), "0");
    EXPECT_EQ(choose(table, selection, fields[goods], "gold"), 1) << "the flag alone";
    table.load(7, data::table_column(treaty_spain), "0");
    EXPECT_EQ(choose(table, selection, fields[treaty_spain], "0"), 3);
    EXPECT_EQ(choose(table, selection, fields[treaty_spain], "ESPAGNE"), 3);
    EXPECT_EQ(choose(table, selection, fields[treaty_spain], "x"), 0);
}

} // namespace
