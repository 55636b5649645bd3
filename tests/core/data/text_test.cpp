#include "data/text.h"

#include <gtest/gtest.h>

namespace {

TEST(Text, LetterCaseIsFoldedInTheCodePage) {
    EXPECT_TRUE(data::equal_ignoring_case("R\xC9GION", "r\xE9gion"));
    EXPECT_TRUE(data::equal_ignoring_case("\x8A\x8C\x8E\x9F", "\x9A\x9C\x9E\xFF"));
    EXPECT_FALSE(data::equal_ignoring_case("\xD7", "\xF7")); // multiplication and division signs
    EXPECT_FALSE(data::equal_ignoring_case("\xDF", "\xFF")); // sharp s has no capital here
    EXPECT_FALSE(data::equal_ignoring_case("e", "\xE9"));
    EXPECT_FALSE(data::equal_ignoring_case("ab", "abc"));
}

TEST(Text, Search) {
    EXPECT_EQ(data::find_ignoring_case("a ORIGIN x", "origin"), 2U);
    EXPECT_EQ(data::find_ignoring_case("origin", "origin", 1), std::string_view::npos);
    EXPECT_EQ(data::find_ignoring_case("x", "x", 5), std::string_view::npos);
    EXPECT_TRUE(data::starts_with_ignoring_case("cote_x", "COTE_"));
    EXPECT_FALSE(data::starts_with_ignoring_case("COT", "COTE_"));
}

TEST(Text, OnlyTheFirstCommaBecomesAPoint) {
    EXPECT_EQ(data::with_decimal_point("1,5,2"), "1.5,2");
    EXPECT_EQ(data::with_decimal_point("1.5"), "1.5");
}

} // namespace
