#include "data/numbers.h"
#include "data/run_time_error.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

namespace {

TEST(Numbers, LeadingNumber) {
    const struct {
        const char* text;
        double number;
    } cases[] = {
        {"12", 12},     {"12.4;x", 12.4}, {"1,5", 1},   {"abc", 0},    {"", 0},     {"  7", 7},
        {"\t-3x", -3},  {"+5", 5},        {".5", 0.5},  {"5.", 5},     {"1e3", 1},  {"--5", 0},
        {"inf", 0},     {"nan", 0},       {"-inf", 0},  {"1 2", 1},    {"&H10", 0}, {"0x10", 0},
        {"1.2.3", 1.2}, {"- 5", 0},       {"-.5", -.5}, {"00012", 12},
    };
    for (const auto& each : cases)
        EXPECT_EQ(data::leading_number(each.text), each.number) << each.text;
}

TEST(Numbers, LeadingNumberOfAnyLength) {
    const std::string nines(400, '9');
    EXPECT_TRUE(std::isinf(data::leading_number(nines)));
    EXPECT_TRUE(std::isinf(data::leading_number("000" + nines)));
    EXPECT_LT(data::leading_number("-" + nines), 0);
    EXPECT_EQ(data::leading_number("0." + std::string(400, '0') + "1"), 0);
}

TEST(Numbers, HalvesRoundToTheEvenNeighbour) {
    EXPECT_EQ(data::to_int16(12.5, std::string()), 12);
    EXPECT_EQ(data::to_int16(13.5, std::string()), 14);
    EXPECT_EQ(data::to_int16(-2.5, std::string()), -2);
    EXPECT_EQ(data::to_int16(32767.4, std::string()), 32767);
    EXPECT_EQ(data::to_int16(-32768.5, std::string()), -32768);
}

TEST(Numbers, OverflowNamesThePlace) {
    for (const double number : {32767.5, -32769.0, std::nan(""), double{INFINITY}}) {
        try {
            data::to_int16(number, std::string("Text4"));
            FAIL() << number;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::overflow);
            EXPECT_NE(error.place().in_english().find("Text4"), std::string::npos);
        }
    }
}

TEST(Numbers, TextIsDecimalWithoutIdleDigits) {
    const struct {
        double number;
        const char* text;
    } cases[] = {
        {10.25 + 120, "130.25"},
        {120, "120"},
        {-0.0, "0"},
        {0.1 + 0.2, "0.3"},
        {-6.5, "-6.5"},
        {100000000, "100000000"},
        {1e15 + 150, "1000000000000150"},
        {-1e23, "-100000000000000000000000"},
        {0.00001, "0.00001"},
        {-0.0000125, "-0.0000125"},
        {123456789012345.678, "123456789012346"},
        {std::nan(""), "0"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(data::to_text(each.number), each.text);
    EXPECT_EQ(data::to_text(INFINITY), "179769313486232" + std::string(294, '0'));
}

} // namespace
