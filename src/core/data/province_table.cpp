#include "data/province_table.h"

#include "data/run_time_error.h"

namespace data {

namespace {

constexpr auto rows = static_cast<std::size_t>(provinces_rows);

void check_column(TableColumn column) {
    if (column.index < 0 || column.index >= table_columns)
        throw RunTimeError(ErrorNumber::subscript_out_of_range,
                           "table column " + std::to_string(column.index) +
                               " is not between 0 and " + std::to_string(table_columns - 1));
}

std::size_t position(int province, TableColumn column) {
    check_column(column);
    if (province < 0 || province > last_province)
        throw RunTimeError(ErrorNumber::subscript_out_of_range,
                           "province " + std::to_string(province) + " is not between 0 and " +
                               std::to_string(last_province));
    return static_cast<std::size_t>(province) + static_cast<std::size_t>(column.index) * rows;
}

} // namespace

ProvinceTable::ProvinceTable() : cells_(rows * table_columns) {}

const std::string& ProvinceTable::cell(int province, TableColumn column) const {
    return cells_[position(province, column)];
}

std::string& ProvinceTable::at(int province, TableColumn column) {
    return cells_[position(province, column)];
}

void ProvinceTable::write(int province, TableColumn column, std::string_view text) {
    std::string& cell = at(province, column);
    if (cell == text)
        return;
    cell = text;
    unsaved_changes_ = true;
}

void ProvinceTable::load(int province, TableColumn column, std::string_view text) {
    at(province, column) = text;
}

std::span<const std::string> ProvinceTable::column(TableColumn column) const {
    check_column(column);
    return std::span(cells_).subspan(static_cast<std::size_t>(column.index) * rows, rows);
}

} // namespace data
