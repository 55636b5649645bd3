#include "data/run_time_error.h"
#include "shell/language.h"

#include <gtest/gtest.h>
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
    EXPECT_EQ(texts.message(data::Message::efficiency_out_of_range), "one");
    EXPECT_EQ(texts.message(data::Message::ferocity_out_of_range), "");
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
            const std::string line = "line " + std::to_string(list.capacity + 1) + ":";
            EXPECT_NE(error.place().find(line), std::string::npos) << error.place();
        }
    }
}

} // namespace
