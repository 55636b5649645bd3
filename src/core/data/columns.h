#pragma once

#include "data/indexed_array.h"

#include <array>
#include <cstddef>
#include <string_view>

/// The three numberings of a province value, and the only place where one becomes another.
namespace data {

/// Column of the province file, 1 to 59; column 1 is the identifier.
struct FileColumn {
    int number;
    friend constexpr bool operator==(FileColumn, FileColumn) = default;
};

/// Column of the province table, 0 to 57.
struct TableColumn {
    int index;
};

/// Number of a field in the editor panel, 1 to 58.
struct FieldNumber {
    int number;
    friend constexpr bool operator==(FieldNumber, FieldNumber) = default;
};

/// Returns the table column that holds the field.
constexpr TableColumn table_column(FieldNumber field) {
    return {field.number - 1};
}

/// Returns the table column that holds the file column (2 or above).
constexpr TableColumn table_column(FileColumn column) {
    return {column.number - 2};
}

/// Returns the number of the field that shows the file column (2 or above).
constexpr FieldNumber field_number(FileColumn column) {
    return {column.number - 1};
}

/// Returns the place of the field in an array of one value for each field.
constexpr std::size_t position_of(FieldNumber field) {
    return static_cast<std::size_t>(field.number - 1);
}

/// Returns the file column that the table column is read from and written to.
constexpr FileColumn file_column(TableColumn column) {
    return {column.index + 2};
}

/// The file columns by what they hold.
namespace column {

inline constexpr FileColumn name{2}, coast{3}, religion{4}, culture{5}, size_modifier{6}, pashas{7},
    climate{8}, ice{9}, storm{10}, galleys{11}, manpower{12}, income{13}, terrain{14},
    treaty_spain{15}, treaty_portugal{16}, empire{17}, mine_flag{18}, mine_value{19}, goods{20},
    upgradable{21}, trade_centre{22}, colony_difficulty{23}, native_strength{24}, ferocity{25},
    efficiency{26}, trade_difficulty{27}, tolerance{28}, city_x{29}, city_y{30}, army_x{31},
    army_y{32}, port_x{33}, port_y{34}, manufactory_x{35}, manufactory_y{36}, port_sea{37},
    area{50}, region{51}, continent{52}, city_name{53};

/// One for each of the four terrain drawings.
inline constexpr std::array<FileColumn, 4> drawing_x = {{{38}, {41}, {44}, {47}}};
inline constexpr std::array<FileColumn, 4> drawing_y = {{{39}, {42}, {45}, {48}}};
inline constexpr std::array<FileColumn, 4> drawing_variant = {{{40}, {43}, {46}, {49}}};

inline constexpr std::array<FileColumn, 3> rivers = {{{54}, {55}, {56}}};

} // namespace column

inline constexpr int file_columns = 59;
inline constexpr int table_columns = 58;

/// One value for each field, reached by the field's number.
template <typename Value>
using FieldArray = IndexedArray<FieldNumber, Value, table_columns>;

/// The reader stops before this table column; what the file holds from there on is not kept.
inline constexpr TableColumn first_unread{55};
/// The writer stops before this table column and ends the line with two zeros.
inline constexpr TableColumn first_unwritten{56};

/// Header texts by file column, the first one at index 0.
inline constexpr std::array<std::string_view, file_columns> headers = {
    "Id",
    "Name",
    "QEV name",
    "Religion",
    "Culture",
    "SizeModifier",
    "Pashas",
    "Climate",
    "Ice?",
    "Storm?",
    "Galleys",
    "Manpower",
    "Income",
    "Terrain",
    "ToT-SPA",
    "ToT-POR",
    "HRE",
    "Mine(1) ?",
    "MineValue",
    "Goods",
    "Uprgadable",
    "CoT Historical Modifier",
    "Difficulty for Colonization",
    "Native Combat Strength",
    "Ferocity",
    "Efficiency of Natives in combat",
    "Negotiation Value for Trading Posts",
    "Natives Tolerance value ",
    "City XPos",
    "City YPos",
    "Army XPos",
    "ArmyYPos",
    "PortXPos",
    "Port YPos",
    "Manufactory XPos",
    " Manufactory YPos",
    "Port/sea Adjacency",
    "Terrain x",
    "Terrain Y",
    "Terrain variant",
    "Terrain x",
    "Terrain Y",
    "Terrain variant",
    "Terrain x",
    "Terrain Y",
    "Terrain variant",
    "Terrain x",
    "Terrain Y",
    "Terrain variant",
    "Area",
    "Region",
    "Continent",
    "",
    "Extra River Desc Link 1",
    "Extra River Desc Link 2",
    "Extra River Desc Link 3",
    "",
    "Fill coord X",
    "Fill coord Y",
};

/// Returns the header text of the file column.
constexpr std::string_view header(FileColumn column) {
    return headers.at(static_cast<std::size_t>(column.number - 1));
}

} // namespace data
