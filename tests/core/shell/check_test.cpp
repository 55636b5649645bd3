#include "data/province_file.h"
#include "data/province_format.h"
#include "shell/file_check.h"
#include "shell/place_check.h"
#include "shell/value_check.h"
#include "support/bitmaps.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

/// A file without a fault has no problem, and one fault in it is one problem.
namespace {

namespace column = data::column;
using data::FileColumn;
using data::ProvinceTable;

const shell::LanguageTexts& english() {
    static const shell::LanguageTexts texts = [] {
        std::ifstream file(LANGUAGES_FOLDER "/english.lng", std::ios::binary);
        return shell::LanguageTexts(std::string(std::istreambuf_iterator<char>(file), {}));
    }();
    return texts;
}

void set(ProvinceTable& table, int province, FileColumn column, const std::string& text) {
    table.write(province, data::table_column(column), text);
}

constexpr int map_width = 60;
constexpr int sea = 200;
constexpr int with_port = 199;

/// A world whose map is made of strips one pixel high, province 1 on top.
ProvinceTable clean_table() {
    ProvinceTable table;
    for (int province = 1; province <= data::last_province; ++province) {
        for (FileColumn number{6}; number.number <= 56; ++number.number)
            set(table, province, number, "0");
        const std::pair<FileColumn, const char*> texts[] = {
            {column::name, "Somewhere"},  {column::coast, "inland"},  {column::religion, "Hindu"},
            {column::culture, "czech"},   {column::goods, "wine"},    {column::ferocity, "2.5"},
            {column::area, "-"},          {column::region, "france"}, {column::continent, ""},
            {column::city_name, "#N/A"},  {column::port_x, "-1"},     {column::port_y, "-1"},
            {column::trade_centre, "-3"}, {column::income, " 12 "},   {column::efficiency, "2"},
            {column::manufactory_x, ""},  {column::manufactory_y, ""}};
        for (const auto& [where, text] : texts)
            set(table, province, where, text);
        set(table, province, column::city_y, std::to_string(province - 1));
        set(table, province, column::army_y, std::to_string(province - 1));
        for (std::size_t drawing = 0; drawing < 4; ++drawing) {
            set(table, province, column::drawing_x[drawing], "-100");
            set(table, province, column::drawing_y[drawing], "-100");
        }
    }
    set(table, sea, column::terrain, "5");
    set(table, with_port, column::port_x, "3");
    set(table, with_port, column::port_y, std::to_string(sea));
    set(table, with_port, column::port_sea, std::to_string(sea));
    return table;
}

std::vector<std::string> printed(const std::vector<shell::Problem>& problems) {
    std::vector<std::string> lines;
    for (const auto& problem : problems)
        lines.push_back(printed_line(problem, "F", english()));
    return lines;
}

using Lines = std::vector<std::string>;

Lines file_problems(const std::string& bytes) {
    return printed(shell::check_file(bytes).problems);
}

/// Replaces the first `from` at or behind the row of the province.
void damage(std::string& bytes, int province, const std::string& from, const std::string& to) {
    const auto row = bytes.find("\n" + std::to_string(province) + ";") + 1;
    bytes.replace(bytes.find(from, row), from.size(), to);
}

TEST(Check, EveryFaultOfTheFileIsOneProblem) {
    const std::string clean = write_provinces(clean_table());
    EXPECT_EQ(file_problems(clean), Lines());

    const auto row = [&clean](int province) {
        const auto begin = clean.find("\n" + std::to_string(province) + ";") + 1;
        return clean.substr(begin, clean.find('\r', begin) - begin);
    };
    std::string bytes = clean;
    damage(bytes, 0, "Incognita", "Cognita");
    damage(bytes, 10, "\r\n", "\n");
    damage(bytes, 20, "20;", "\n20;");
    damage(bytes, 30, "Some", {"So\0e", 4});
    damage(bytes, 40, "\r\n", ";\r\n");
    damage(bytes, 50, ";0;0\r\n", ";0\r\n");
    damage(bytes, 60, ";0;;0;0\r\n", ";0\r\n");
    damage(bytes, 70, row(70), "70");
    damage(bytes, 80, "80;", "80.0;");
    damage(bytes, 90, "\r\n", "\r\n" + row(90) + "\r\n");
    damage(bytes, 100, row(100) + "\r\n", "");
    damage(bytes, 110, "\r\n", "\r\n2019;x\r\n\r\n");
    damage(bytes, 120, ";;0;0\r\n", ";x;0;0\r\n");
    damage(bytes, 130, ";0;0\r\n", ";0;5\r\n");
    damage(bytes, 131, ";0;0\r\n", ";0;6\r\n");
    damage(bytes, 140, ";;0;0\r\n", ";#N/A;0;\r\n"); // says as little as what is saved
    bytes.replace(bytes.find("Pashas"), 6, "Pasha");
    bytes.erase(bytes.rfind("-1;Filler"));

    EXPECT_EQ(
        file_problems(bytes),
        Lines({
            "F:1: 7 (Pashas): the header is 'Pasha' instead of 'Pashas'",
            "F:2: 2 (Name): the game's own row has 'Terra Incognita' here, not 'Terra Cognita'",
            "F:12: province 10: line feeds alone (1) end no line: the rows behind them are not "
            "read",
            "F:21: line feeds alone (1) end no line: the rows behind them are not read",
            "F:31: province 30: NUL bytes: 1",
            "F:41: province 40: the line has 60 fields instead of 59, saving will not keep the "
            "further ones",
            "F:51: province 50: the line has 58 fields instead of 59",
            "F:61: province 60: the line has 56 fields, reading needs at least 57 and cannot take "
            "it",
            "F:71: province 70: the line has 1 fields, reading needs at least 57 and cannot take "
            "it",
            "F:81: province 80, 1 (Id): the identifier '80.0' is no whole number, it is read as 80",
            "F:92: province 90, 1 (Id): province 90 is already on line 91, this line replaces it",
            "F:112: 1 (Id): the identifier '2019' is not between 1 and 2018: the line is not read "
            "and saving will not keep it",
            "F:113: 1 (Id): the identifier '' is not between 1 and 2018: the line is not read and "
            "saving will not keep it",
            "F:123: province 120, 57: saving will not keep 'x' (lines with text in this column: 1)",
            "F:133: province 130, 59 (Fill coord Y): saving will not keep '5' (lines with text in "
            "this column: 2)",
            "F: the game's own row 'Filler' is missing",
            "F: province 100: the file has no line for this province",
        }));
}

TEST(Check, AFileOfAnotherKind) {
    const std::string clean = write_provinces(clean_table());
    std::string with_line_feeds = clean;
    std::erase(with_line_feeds, '\r');
    EXPECT_EQ(file_problems(with_line_feeds),
              Lines{"F:1: line feeds alone (2021) end no line: the rows behind them are not read"});
    EXPECT_EQ(file_problems(clean.substr(clean.find('\n') + 1)),
              Lines{"F:1: 1 (Id): the header is '0' instead of 'Id'"});
    EXPECT_EQ(file_problems("").size(), 1U + 2U + data::last_province);
}

TEST(Check, ReadingGoesOnBehindALineThatItCannotTake) {
    const std::string bytes = write_provinces(clean_table());
    const auto row_8 = bytes.find("\n8;") + 1;
    ProvinceTable table;
    const auto report = read_provinces("7;only\r\n" + bytes.substr(row_8), table,
                                       data::Source::file, data::BadLine::is_passed_over);
    EXPECT_EQ(report.provinces, data::last_province - 7);
    EXPECT_EQ(table.cell(9, {0}), "Somewhere");
}

TEST(Check, EveryWrongCellIsOneProblem) {
    const struct {
        FileColumn column;
        const char* cell;
        const char* problem;
    } cases[] = {
        {column::religion, "hindi", "'hindi' is no code of the language file"},
        {column::religion, "#N/A", nullptr},
        {column::culture, "checz", "'checz' is no code of the language file"},
        {column::climate, "9", "'9' is no code of the language file"},
        {column::terrain, "7", "'7' is no code of the language file"},
        {column::goods, "vine", "'vine' is no code of the language file"},
        {column::trade_centre, "6", "'6' is no code of the language file"},
        {column::colony_difficulty, "10", "'10' is no code of the language file"},
        {column::trade_difficulty, "x", "'x' is no code of the language file"},
        {column::tolerance, "-1", "'-1' is no code of the language file"},
        {column::continent, "Atlantis", "'Atlantis' is no code of the language file"},
        {column::region, "Mu", "'Mu' is no code of the language file"},
        {column::area, "--", "'--' is no code of the language file"},
        {column::empire, "2", "'2' is no code of the language file"},
        {column::treaty_spain, "2", "'2' is neither 0 nor 1"},
        {column::treaty_portugal, "x", "'x' is neither 0 nor 1"},
        {column::storm, "-1", "'-1' is neither 0 nor 1"},
        {column::mine_flag, "2", "'2' is neither 0 nor 1"},
        {column::mine_flag, "1", "the mine flag is 1, but the goods are 'wine'"},
        {column::income, "1,5", "'1,5' is no number"},
        {column::manpower, "1e5", "'1e5' is no number"},
        {column::city_x, "-", nullptr},
        {column::rivers[2], "5x", "'5x' is no number"},
        {column::ferocity, "5.1", "5.1 is not between 0 and 5"},
        {column::ferocity, "-0.1", "-0.1 is not between 0 and 5"},
        {column::efficiency, "2.01", "2.01 is not between 0 and 2"},
        {column::efficiency, "two", "'two' is no number"},
        {column::coast, "Coastal", nullptr},
        {column::coast, "costal",
         "hint: 'costal' is neither coastal nor inland and counts as inland"},
        {column::name, "a;b", "'a;b' holds a semicolon or a line end, which breaks the saved line"},
    };
    ProvinceTable table = clean_table();
    shell::ProvinceLines lines = {};
    EXPECT_EQ(printed(check_values(table, english(), lines)), Lines());

    int province = 10;
    Lines expected;
    for (const auto& each : cases) {
        ++province;
        set(table, province, each.column, each.cell);
        lines.at(static_cast<std::size_t>(province)) = 500 + province;
        if (each.problem)
            expected.push_back("F:" + std::to_string(500 + province) + ": province " +
                               std::to_string(province) + ", " + shell::shown_column(each.column) +
                               ": " + each.problem);
    }
    set(table, 1000, column::goods, "Gold");
    expected.emplace_back(
        "F: province 1000, 18 (Mine(1) ?): the mine flag is 0, but the goods are 'Gold'");
    set(table, 1001, column::mine_flag, "1");
    set(table, 1001, column::goods, "golt");
    expected.emplace_back("F: province 1001, 20 (Goods): 'golt' is no code of the language file");
    EXPECT_EQ(printed(check_values(table, english(), lines)), expected);

    for (const auto& problem : check_values(table, shell::LanguageTexts(), lines))
        EXPECT_NE(problem.what, shell::Text::problem_unknown_code)
            << "there is no list to hold it to";
}

TEST(Check, OnePositionOffIsOneHint) {
    const struct {
        int province;
        FileColumn column;
        const char* cell;
        const char* problem;
    } cases[] = {
        {7, column::city_x, "59", nullptr},
        {7, column::city_x, "60",
         "29 (City XPos): hint: the position (60, 6) lies outside the map"},
        {7, column::city_y, "2018",
         "29 (City XPos): hint: the position (0, 2018) lies outside the map"},
        {7, column::army_y, "7", "31 (Army XPos): hint: the position (0, 7) lies in province 8"},
        {with_port, column::port_sea, "x",
         "37 (Port/sea Adjacency): hint: the port's sea 'x' is no sea province"},
        {with_port, column::port_sea, "9",
         "37 (Port/sea Adjacency): hint: the port's sea '9' is no sea province"},
        {with_port, column::port_y, "249", nullptr},
        {with_port, column::port_y, "250",
         "33 (PortXPos): hint: the port (3, 250) lies more than 50 pixels from its sea, province "
         "200"},
    };
    ProvinceTable table = clean_table();
    map::ProvinceIndex index;
    for (int y = 0; y < data::last_province; ++y)
        index.add_row(y,
                      std::vector<map::Pixel>(map_width, 0xFF000000 | bitmaps::colour_of(y + 1)));
    const map::Maps maps;
    const auto hints = [&](const map::ProvinceIndex& places) {
        return printed(check_places(
            table, english(),
            {map_width, data::last_province, maps, places, [](int, int y) { return y + 1; }}, {}));
    };
    EXPECT_EQ(hints(index), Lines());
    for (const auto& each : cases) {
        const auto cell = data::table_column(each.column);
        const std::string right = table.cell(each.province, cell);
        set(table, each.province, each.column, each.cell);
        const std::string place = "F: province " + std::to_string(each.province) + ", ";
        EXPECT_EQ(hints(index), each.problem ? Lines{place + each.problem} : Lines());
        set(table, each.province, each.column, right);
    }

    const std::vector<map::Pixel> foreign(3, 0xFF000000 | bitmaps::colour_of(2019));
    index.add_row(data::last_province, foreign);
    EXPECT_EQ(
        hints(index),
        Lines{"F: hint: the ID map has 3 pixels of the identifier 2019, which no province has"});
    for (data::TableColumn cell{0}; cell.index < data::table_columns; ++cell.index)
        table.write(7, cell, "");
    const Lines lines = hints(index);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(
        lines[0],
        "F: province 7: hint: the ID map has 60 pixels of this province, which has no values");
    EXPECT_EQ(hints(map::ProvinceIndex()).size(), data::last_province - 1U);
}

} // namespace
