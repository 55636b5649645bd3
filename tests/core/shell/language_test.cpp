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

TEST(LanguageTexts, FurtherTextsAreEnglishWhereTheFileLacksThem) {
    using shell::Text;
    const LanguageTexts texts(
        "\"texte_ETAT_selected\",\"%2 et %1 %\"\r\n\"TEXTE_x\",\"unknown\"\r\n"
        "\"TEXTE_error_disk_full\",\"Plein\"\r\n\"TERRAIN_0\",\"Plains\"\r\n"
        "\"TEXTE_place_line\",\"ligne %1\"\r\n\"TEXTE_place_reason\",\"%1 : %2\"\r\n");
    EXPECT_EQ(texts.list("TERRAIN_").size(), 1U);
    EXPECT_EQ(texts.text(Text::etat_selected), "%2 et %1 %");
    EXPECT_EQ(texts.text(Text::etat_selected, {"%2", "b"}), "b et %2 %");
    EXPECT_EQ(texts.text(Text::notice_write, {"Name"}), "Name: %2 provinces");
    EXPECT_EQ(LanguageTexts().text(Text::locale), "en");

    for (int number = 0; number <= 76; ++number) {
        const data::RunTimeError error(static_cast<data::ErrorNumber>(number),
                                       data::Phrase(std::string("here")));
        EXPECT_EQ(LanguageTexts().text(error), error.what()) << "the words are the same";
    }
    const auto full =
        data::RunTimeError(data::ErrorNumber::disk_full, data::Phrase(Text::reason_no_file))
            .within(Text::place_selection)
            .within(data::Phrase(Text::place_line, 3));
    EXPECT_EQ(texts.text(full),
              "Run-time error 61: Plein\nligne 3, selection : there is no such file");
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
            EXPECT_NE(error.place().in_english().find(line), std::string::npos) << error.what();
        }
    }
}

} // namespace
