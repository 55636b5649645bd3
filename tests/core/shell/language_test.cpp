#include "data/run_time_error.h"
#include "shell/error_text.h"
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

TEST(LanguageTexts, FurtherTextsAreEnglishWhereTheFileLacksThem) {
    using shell::Text;
    const LanguageTexts texts(
        "\"texte_ETAT_selected\",\"%2 et %1 %\"\r\n\"TEXTE_x\",\"unknown\"\r\n"
        "\"TEXTE_error_disk_full\",\"Plein\"\r\n\"TERRAIN_0\",\"Plains\"\r\n");
    EXPECT_EQ(texts.list("TERRAIN_").size(), 1U);
    EXPECT_EQ(texts.text(Text::etat_selected), "%2 et %1 %");
    EXPECT_EQ(texts.text(Text::etat_selected, {"%2", "b"}), "b et %2 %");
    EXPECT_EQ(texts.text(Text::notice_write, {"Name"}), "Name: %2 provinces");
    EXPECT_EQ(LanguageTexts().text(Text::locale), "en");

    for (int number = 0; number <= 76; ++number) {
        const data::RunTimeError error(static_cast<data::ErrorNumber>(number), "here");
        EXPECT_EQ(text_of(error, LanguageTexts()), error.what()) << "the words are the same";
    }
    const data::RunTimeError full(data::ErrorNumber::disk_full, "");
    EXPECT_EQ(text_of(full, texts), "Run-time error 61: Plein");
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
