#include "data/run_time_error.h"
#include "editor/combined_selection.h"
#include "editor/selection.h"
#include "editor/selection_history.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using editor::Selection;

std::vector<int> selected(const Selection& selection) {
    return {selection.provinces().begin(), selection.provinces().end()};
}

TEST(SelectionText, WhatItSelects) {
    const struct {
        const char* text;
        std::vector<int> provinces;
        bool well_formed = true;
    } cases[] = {
        {"", {}},
        {"5", {5}},
        {"5;7", {5, 7}},
        {"5-7", {5, 6, 7}},
        {"7-5", {}},
        {";5", {5}, false},
        {"-5", {5}, false},
        {"5-", {}},
        {"5;", {5}},
        {"1 2", {1}, false},
        {"12a", {12}, false},
        {"0", {}},
        {"0-3", {1, 2, 3}},
        {"5--7", {}, false},
        {"--7", {}, false},
        {"9;3-4;9", {3, 4, 9}},
        {"5;;6", {5, 6}, false},
        {"2018", {2018}},
        {"3-4-9", {3, 4}},
        {"007", {7}},
    };
    for (const auto& each : cases) {
        Selection selection;
        selection.apply("1000"); // replaced by whatever follows
        selection.apply(each.text);
        EXPECT_EQ(selected(selection), each.provinces) << each.text;
        EXPECT_EQ(editor::is_well_formed(each.text), each.well_formed) << each.text;
    }
}

TEST(SelectionText, IdentifiersAboveTheLastEndTheSelecting) {
    for (const char* text : {"5;2019;7", "5;2017-99999999999", "5;99999999999999999999999"}) {
        Selection selection;
        try {
            selection.apply(text);
            FAIL() << text;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::subscript_out_of_range);
        }
        EXPECT_TRUE(selection.contains(5)) << text;
        EXPECT_FALSE(selection.contains(7)) << text;
        EXPECT_EQ(selected(selection).front(), 5) << text;
    }
    EXPECT_THROW((void)Selection().contains(2019), data::RunTimeError);
}

TEST(CombinedSelection, IsNamedByItsShortestText) {
    using enum editor::Combination;
    const struct {
        editor::Combination combination;
        const char* selected;
        const char* others;
        const char* text;
    } cases[] = {
        {replace, "1-9", "20;5-6", "5;6;20"},
        {add, "3-5;9", "4;6-7;10-11", "3-7;9-11"},
        {remove, "1-9;12", "4;9-12", "1-3;5-8"},
        {keep, "1-9;12", "4;9-12", "4;9;12"},
        {keep, "1-9", "", ""},
    };
    for (const auto& each : cases) {
        Selection selection;
        Selection others;
        selection.apply(each.selected);
        others.apply(each.others);
        EXPECT_EQ(editor::selection_text(editor::combined(selection.provinces(), others.provinces(),
                                                          each.combination)),
                  each.text);
    }
    Selection selection;
    EXPECT_EQ(editor::selection_text(editor::inverted(selection.provinces())), "1-2018");
    selection.apply("1;3-2016");
    EXPECT_EQ(editor::selection_text(editor::inverted(selection.provinces())), "2;2017;2018");
}

TEST(SelectionHistory, GoesThroughTheLastSelections) {
    editor::SelectionHistory history;
    EXPECT_FALSE(history.has_earlier() || history.has_later());
    for (const char* text : {"5", "6;7", "9"})
        history.add(text, text);
    EXPECT_EQ(history.go_back(), "6;7");
    history.add("7;6", "6;7");
    EXPECT_EQ(history.go_back(), "5");
    EXPECT_FALSE(history.has_earlier());
    EXPECT_EQ(history.go_forward(), "6;7");
    EXPECT_EQ(history.go_forward(), "9");
    EXPECT_FALSE(history.has_later());
    history.go_back();
    history.add("10", "10");
    EXPECT_FALSE(history.has_later());
    EXPECT_EQ(history.go_back(), "6;7");
    for (int province = 1; province <= 1000; ++province)
        history.add(std::to_string(province), std::to_string(province));
    int steps = 0;
    for (; history.has_earlier(); ++steps)
        history.go_back();
    EXPECT_EQ(steps, 199);
}

} // namespace
