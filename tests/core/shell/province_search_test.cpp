#include "shell/province_search.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace {

namespace column = data::column;
using shell::Comparison;
using shell::SearchTarget;

const shell::LanguageTexts language("\"RELIGION_sunni\",\"Sunnite\"\r\n"
                                    "\"RELIGION_exotic\",\"Pa\xEF"
                                    "en\"\r\n"
                                    "\"TERRAIN_5\",\"Oc\xE9"
                                    "an\"\r\n\"TERRAIN_6\",\"\"\r\n"
                                    "\"TOT_ESPAGNE\",\"Espagne\"\r\n"
                                    "\"OCEAN_1\",\"Glace\"\r\n"
                                    "\"DC_0\",\"same\"\r\n\"DC_1\",\"same\"\r\n");

constexpr SearchTarget in(data::FileColumn column) {
    return {SearchTarget::Kind::column, data::field_number(column)};
}
constexpr SearchTarget by_name = {SearchTarget::Kind::name_or_city};
constexpr SearchTarget treaty = {SearchTarget::Kind::treaty};

/// Provinces 1 to 4 have values, all others the values of province 4: none at all.
data::ProvinceTable table() {
    data::ProvinceTable table;
    const struct {
        data::FileColumn column;
        const char* cells[3];
    } values[] = {
        {column::name, {"\xC9vreux", "Rome", "Paris"}},
        {column::city_name, {"rome", "-", "Paris"}},
        {column::religion, {"sunni", "EXOTIC", "other"}},
        {column::terrain, {"5", "6", "#N/A"}},
        {column::income, {"9", "10.5", "9x"}},
        {column::ice, {"1", "0", "-"}},
        {column::treaty_spain, {"1", "1", "0"}},
        {column::treaty_portugal, {"0", "1", "0"}},
    };
    for (const auto& each : values) {
        for (int province = 1; province <= 3; ++province)
            table.load(province, data::table_column(each.column), each.cells[province - 1]);
    }
    return table;
}

TEST(ProvinceSearch, WhatIsFound) {
    using enum Comparison;
    const struct {
        SearchTarget target;
        Comparison comparison;
        const char* text;
        const char* found; // the first four as "province=value ", and how many more
    } cases[] = {
        {by_name, contains, "R", "1=rome 2=- 3=Paris +0"},
        {by_name, contains, "\xE9V", "1=rome +0"},
        {by_name, contains, "", "1=rome 2=- 3=Paris 4= +2014"},
        {by_name, equals, "ROME", "1=rome 2=- +0"},
        {by_name, differs, "rome", "3=Paris 4= +2014"},
        {by_name, is_empty, "", "2=- 4= +2014"},
        {in(column::religion), contains, "NN", "1=sunni (Sunnite) +0"},
        {in(column::religion), equals,
         "pa\xCF"
         "en",
         "2=EXOTIC (Pa\xEF"
         "en) +0"},
        {in(column::religion), equals, "exotic",
         "2=EXOTIC (Pa\xEF"
         "en) +0"},
        {in(column::religion), equals, "", "4= +2014"},
        {in(column::religion), differs, "Sunnite",
         "2=EXOTIC (Pa\xEF"
         "en) 3=other 4= +2014"},
        {in(column::terrain), equals,
         "oc\xC9"
         "an",
         "1=5 (Oc\xE9"
         "an) +0"},
        {in(column::terrain), equals, "", "4= +2014"},
        {in(column::terrain), is_empty, "x", "3=#N/A 4= +2014"},
        {in(column::terrain), greater, "5", "2=6 +0"},
        {in(column::income), less, "10,5", "1=9 +0"},
        {in(column::income), greater, "9", "2=10.5 +0"},
        {in(column::income), less, "", "+0"},
        {in(column::income), equals, "9X", "3=9x +0"},
        {in(column::ice), equals, "1", "1=1 +0"},
        {treaty, equals, "espagne", "1=ESPAGNE +0"},
        {treaty, contains, "0", "2=0 3=0 4=0 +2014"},
        {in(column::treaty_spain), equals, "1", "1=1 2=1 +0"},
    };
    const auto provinces = table();
    for (const auto& each : cases) {
        const auto found =
            find_provinces(provinces, language, {each.target, each.comparison, each.text});
        std::string shown;
        int more = 0;
        for (const auto& [province, value] : found) {
            if (province <= 4)
                shown += std::to_string(province) + "=" + value + " ";
            else
                ++more;
        }
        EXPECT_EQ(shown + "+" + std::to_string(more), each.found)
            << static_cast<int>(each.comparison) << each.text;
    }
}

TEST(ProvinceSearch, TheTextOfAValueFindsNoOther) {
    EXPECT_EQ(text_to_find(language, in(column::religion), "Sunni"), "Sunnite");
    EXPECT_EQ(text_to_find(language, in(column::religion), "other"), "other");
    EXPECT_EQ(text_to_find(language, in(column::colony_difficulty), "1"), "1") << "0 reads so, too";
    EXPECT_EQ(text_to_find(language, in(column::terrain), "6"), "6") << "has no text";
    EXPECT_EQ(text_to_find(language, treaty, "ESPAGNE"), "Espagne");
}

TEST(ProvinceSearch, EveryColumnOfAFileCanBeSearched) {
    EXPECT_EQ(shell::search_targets().size(), 55U + 2U);
    for (const auto& field : editor::fields) {
        const auto targets = shell::search_targets();
        const bool is_read = data::table_column(field.number).index < data::first_unread.index;
        EXPECT_EQ(std::count(targets.begin(), targets.end(), shell::target_of(field)),
                  is_read ? 1 : 0);
    }
}

} // namespace
