#include "data/province_file.h"
#include "data/run_time_error.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using data::FileColumn;
using data::ProvinceTable;
using data::table_column;

/// A complete line: the identifier, then "c2", "c3" and so on up to column 59.
std::string line(const std::string& identifier) {
    std::string text = identifier;
    for (int column = 2; column <= data::file_columns; ++column)
        text += ";c" + std::to_string(column);
    return text + "\r\n";
}

std::vector<std::string> lines_of(const std::string& bytes) {
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const auto end = bytes.find("\r\n", start);
        lines.push_back(bytes.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

TEST(ProvinceFile, AnEmptyTableIsWrittenAs2021Lines) {
    const auto lines = lines_of(write_provinces(ProvinceTable()));
    ASSERT_EQ(lines.size(), 2021U);
    EXPECT_TRUE(lines[0].starts_with("Id;Name;QEV name;Religion;"));
    EXPECT_TRUE(lines[0].ends_with(
        ";Continent;;Extra River Desc Link 1;Extra River Desc Link 2;Extra River Desc Link "
        "3;;Fill coord X;Fill coord Y"));
    EXPECT_EQ(lines[8], "7" + std::string(56, ';') + ";0;0");
    for (const auto& each : lines)
        EXPECT_EQ(std::count(each.begin(), each.end(), ';'), 58) << each;
    EXPECT_TRUE(lines[1].starts_with("0;Terra Incognita;inland;exotic;none;0;"));
    EXPECT_TRUE(lines[1].ends_with(";0;-;-;-;#N/A;0;0;0;#N/A;-1;-1"));
    EXPECT_TRUE(lines[2020].starts_with("-1;Filler;inland;exotic;none;-1;-1;-1;-1;-1;0;"));
    EXPECT_TRUE(lines[2020].ends_with(";0;;;;#N/A;0;0;0;0;0;0"));
}

TEST(ProvinceFile, ReadAndWrittenAgainOnlyThreeColumnsDiffer) {
    ProvinceTable table;
    const auto report = read_provinces("Id;Name\r\n" + line("0") + line("5") + line("-1"), table);
    EXPECT_EQ(report.provinces, 1);
    EXPECT_EQ(report.lines, 4);
    std::string expected = line("5");
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {";c57;", ";;"}, {";c58", ";0"}, {";c59\r\n", ";0"}})
        expected.replace(expected.find(from), from.size(), to);
    EXPECT_EQ(lines_of(write_provinces(table))[6], expected);
    EXPECT_FALSE(table.has_unsaved_changes());
}

TEST(ProvinceFile, EveryByteSurvives) {
    std::string value;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != ';' && byte != '\r')
            value += static_cast<char>(byte);
    }
    ProvinceTable table;
    read_provinces("7;" + value + std::string(57, ';') + "\r\n", table);
    EXPECT_EQ(table.cell(7, table_column(FileColumn{2})), value);
    EXPECT_EQ(lines_of(write_provinces(table))[8], "7;" + value + std::string(55, ';') + ";0;0");
}

TEST(ProvinceFile, IdentifiersAreNumbers) {
    const struct {
        const char* identifier;
        int row; // 0: the line is passed over
    } cases[] = {{"12.4", 12},  {"12.5", 12}, {"13.5", 14}, {"  9", 9},        {"2018", 2018},
                 {"2018.6", 0}, {"2019", 0},  {"0.6", 0},   {"x5", 0},         {"5x", 5},
                 {"", 0},       {"-5", 0},    {"\n6", 0},   {"99999999999", 0}};
    for (const auto& each : cases) {
        ProvinceTable table;
        EXPECT_EQ(read_provinces(line(each.identifier), table).provinces, each.row ? 1 : 0)
            << each.identifier;
        if (each.row != 0) {
            EXPECT_EQ(table.cell(each.row, data::TableColumn{0}), "c2") << each.identifier;
        }
    }
}

TEST(ProvinceFile, LineEnds) {
    ProvinceTable table;
    // A lone line feed belongs to the text; a lone carriage return ends a line; the last line may
    // lack its end.
    std::string text = line("5");
    text.replace(text.find("c2"), 2, "a\nb");
    text += line("6");
    text.erase(text.size() - 1);
    text += line("7");
    text.erase(text.size() - 2);
    EXPECT_EQ(read_provinces(text, table).provinces, 3);
    EXPECT_EQ(table.cell(5, data::TableColumn{0}), "a\nb");

    std::string unix_text = "Id;Name\n" + line("5");
    unix_text.erase(std::remove(unix_text.begin(), unix_text.end(), '\r'), unix_text.end());
    const auto report = read_provinces(unix_text, table);
    EXPECT_EQ(report.provinces, 0);
    EXPECT_EQ(report.lines, 1);
    EXPECT_FALSE(report.has_carriage_return);
}

TEST(ProvinceFile, ASecondFileKeepsWhatItLacks) {
    ProvinceTable table;
    read_provinces(line("5") + line("6"), table);
    read_provinces("6;;x" + std::string(54, ';') + "\r\n", table);
    EXPECT_EQ(table.cell(5, data::TableColumn{0}), "c2");
    EXPECT_EQ(table.cell(6, data::TableColumn{0}), "");
    EXPECT_EQ(table.cell(6, data::TableColumn{1}), "x");
}

TEST(ProvinceFile, TooFewFieldsAreAnErrorWithItsPlace) {
    const struct {
        std::string line;
        const char* place;
    } cases[] = {
        {"9" + std::string(19, ';'), "line 2, province 9, column 20 (Goods)"},
        {"9" + std::string(55, ';'), "line 2, province 9, column 56 "},
        {"9", "line 2, province 9, column 2 (Name)"},
    };
    for (const auto& each : cases) {
        ProvinceTable table;
        try {
            read_provinces(line("5") + each.line, table);
            FAIL() << each.line;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::invalid_procedure_call);
            EXPECT_TRUE(error.place().in_english().starts_with(each.place)) << error.what();
        }
        EXPECT_EQ(table.cell(5, data::TableColumn{54}), "c56");
    }
    ProvinceTable table;
    EXPECT_EQ(read_provinces("9" + std::string(56, ';'), table).provinces, 1);
}

TEST(ProvinceTable, BoundsAndUnsavedChanges) {
    ProvinceTable table;
    for (const auto& [province, column] : {std::pair(-1, 0), {2019, 0}, {5, -1}, {5, 58}})
        EXPECT_THROW(table.write(province, {column}, "x"), data::RunTimeError);
    table.load(5, {0}, "x");
    table.write(5, {0}, "x");
    EXPECT_FALSE(table.has_unsaved_changes());
    table.write(5, {57}, "y");
    EXPECT_TRUE(table.has_unsaved_changes());
    EXPECT_EQ(table.column({57})[5], "y");
}

} // namespace
