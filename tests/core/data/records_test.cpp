#include "data/records.h"
#include "data/run_time_error.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<std::string> fields_of(std::string_view bytes) {
    data::RecordReader reader(bytes);
    std::vector<std::string> fields;
    while (!reader.at_end())
        fields.push_back(reader.next());
    return fields;
}

TEST(Records, Fields) {
    using Fields = std::vector<std::string>;
    const struct {
        const char* bytes;
        Fields fields;
    } cases[] = {
        {"\"a\",\"b\"\r\n", {"a", "b"}},       {"\"a,b\" , c d \r\n0", {"a,b", "c d", "0"}},
        {"  \"a \"x,\t b\t\r\n", {"a ", "b"}}, {"a,,b\r\n", {"a", "", "b"}},
        {"a\nb\rc", {"a", "b", "c"}},          {"a\r\n\r\n  \r\nb\r\n\r\n", {"a", "b"}},
        {"\"\",it\"s\r\n", {"", "it\"s"}},     {"", {}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(fields_of(each.bytes), each.fields) << each.bytes;
}

TEST(Records, AByteOrderMarkIsPassedOverAndUtf16Refused) {
    EXPECT_EQ(fields_of("\xEF\xBB\xBF\"GFX\",0"), (std::vector<std::string>{"GFX", "0"}));
    using namespace std::string_view_literals;
    for (const auto bytes : {"\xFF\xFE\"\0"sv, "\xFE\xFF\0\""sv, "\"\0M\0"sv, "\0\"\0M"sv}) {
        try {
            fields_of(bytes);
            FAIL() << bytes;
        } catch (const data::RunTimeError& error) {
            EXPECT_NE(error.place().in_english().find("UTF-16"), std::string::npos) << error.what();
        }
    }
    EXPECT_EQ(fields_of("\0\0\0"sv).size(), 1U) << "a file that lost its bytes is something else";
}

TEST(Records, ErrorsNameTheLine) {
    const struct {
        const char* bytes;
        int number;
        const char* place;
    } cases[] = {
        {"\"a\",0\r\n\"GFX,0\r\n\"b\",0\r\n", 5, "line 2:"},
        {"a\r\n\r\n\"open", 5, "line 3:"},
    };
    for (const auto& each : cases) {
        try {
            fields_of(each.bytes);
            FAIL() << each.bytes;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(static_cast<int>(error.number()), each.number);
            EXPECT_TRUE(error.place().in_english().starts_with(each.place)) << error.what();
        }
    }
    const data::RunTimeError error(data::ErrorNumber::overflow,
                                   data::Phrase(std::string("a\0b", 3)));
    EXPECT_TRUE(std::string(error.what()).ends_with("\na\\0b")) << "a NUL does not end the words";
    data::RecordReader reader("a\r\n");
    reader.next();
    EXPECT_THROW(reader.next(), data::RunTimeError);
}

TEST(Records, AQuotedTextLosesWhatItCannotHold) {
    EXPECT_EQ(data::quoted("a\"b, c"), "\"ab, c\"");
    EXPECT_EQ(fields_of(data::quoted("x\r\ny\"") + ",0"), (std::vector<std::string>{"xy", "0"}));
}

} // namespace
