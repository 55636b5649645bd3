#pragma once

#include <array>
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

/// Returns the file column that the table column is read from and written to.
constexpr FileColumn file_column(TableColumn column) {
    return {column.index + 2};
}

inline constexpr int file_columns = 59;
inline constexpr int table_columns = 58;
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
