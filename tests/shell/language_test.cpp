#include "data/run_time_error.h"
#include "shell/files.h"
#include "shell/language.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

namespace {

using shell::LanguageTexts;

TEST(LanguageTexts, PrefixesInTheirOrder) {
    const LanguageTexts texts("\"cote_x\",\"first\"\r\n\"COTE_y\",\"last\"\r\n"
                              "\"COT_-3\",\"none, at all\"\r\ncot_5 , historical \r\n"
                              "\"ELSE_1\",\"ignored\"\r\n\"CULTURE_\",\"\"\r\n"
                              "\"MESS_BAR(7)\",\"seven\"\r\n\"MESSAGE_Mess1\",\"one\"\r\n"
                              "\"MESSAGE_mess1\",\"later\"\r\n\"MENU_a \",\"blank\"\r\n");
    ASSERT_EQ(texts.list("COTE_").size(), 1U);
    EXPECT_EQ(texts.list("COTE_")[0].text, "last");
    ASSERT_EQ(texts.list("COT_").size(), 2U);
    EXPECT_EQ(texts.list("COT_")[0].code + texts.list("COT_")[0].text, "-3none, at all");
    EXPECT_EQ(texts.list("COT_")[1].code + texts.list("COT_")[1].text, "5historical");
    EXPECT_EQ(texts.list("CULTURE_").size(), 1U);
    EXPECT_EQ(texts.status(7), "seven");
    EXPECT_EQ(texts.message(1), "one");
    EXPECT_EQ(texts.message(2), "");
    EXPECT_EQ(texts.caption("A "), "blank");
    EXPECT_EQ(texts.caption("a"), std::nullopt);
    EXPECT_EQ(texts.exact_caption("A "), std::nullopt);
}

TEST(LanguageTexts, AListHoldsItsCapacityAndNoMore) {
    for (const auto& list : shell::value_lists) {
        const std::string record = '"' + std::string(list.prefix) + "x\",\"text\"\r\n";
        std::string bytes;
        for (std::size_t n = 0; n < list.capacity; ++n)
            bytes += record;
        EXPECT_EQ(LanguageTexts(bytes).list(list.prefix).size(), list.capacity);
        if (list.keeps_last)
            continue;
        try {
            const LanguageTexts overflowing(bytes + record);
            FAIL() << list.prefix;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::subscript_out_of_range);
            const std::string line = "line " + std::to_string(list.capacity + 1) + ",";
            EXPECT_NE(error.place().find(line), std::string::npos) << error.place();
        }
    }
}

TEST(LanguageTexts, BothLanguagesAreFullAndHaveTheSameCodes) {
    const auto read = [](const char* name) {
        return LanguageTexts(shell::read_file(std::string(LANGUAGES_FOLDER "/") + name));
    };
    const LanguageTexts english = read("english.lng");
    const LanguageTexts french = read("french.lng");
    for (const auto& list : shell::value_lists) {
        const auto ours = english.list(list.prefix);
        const auto theirs = french.list(list.prefix);
        ASSERT_EQ(ours.size(), theirs.size()) << list.prefix;
        const bool is_values = !list.prefix.starts_with("ME");
        if (is_values) {
            EXPECT_EQ(ours.size(), list.capacity) << list.prefix;
        }
        std::set<std::string> codes;
        for (std::size_t n = 0; n < ours.size(); ++n) {
            EXPECT_EQ(ours[n].code, theirs[n].code);
            EXPECT_FALSE(ours[n].text.empty() || theirs[n].text.empty()) << ours[n].code;
            EXPECT_TRUE(codes.insert(ours[n].code).second) << "twice: " << ours[n].code;
        }
        for (const auto& texts : {ours, theirs}) {
            std::map<std::string, std::string> code_of;
            for (const auto& entry : texts) {
                if (!is_values)
                    continue;
                const auto [known, is_new] = code_of.emplace(entry.text, entry.code);
                EXPECT_TRUE(is_new)
                    << entry.text << " is " << known->second << " and " << entry.code;
            }
        }
    }
}

} // namespace
