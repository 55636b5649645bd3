#include "data/province_table.h"

#include "data/run_time_error.h"

#include <utility>

namespace data {

namespace {

constexpr auto rows = static_cast<std::size_t>(provinces_rows);
constexpr std::int32_t unchanged = -1;

void check_column(TableColumn column) {
    if (column.index < 0 || column.index >= table_columns)
        throw RunTimeError(ErrorNumber::subscript_out_of_range,
                           Phrase(Text::reason_not_between, column.index, 0, table_columns - 1))
            .within(Phrase(Text::place_table_column));
}

std::size_t position(int province, TableColumn column) {
    check_column(column);
    if (province < 0 || province > last_province)
        throw RunTimeError(ErrorNumber::subscript_out_of_range,
                           Phrase(Text::reason_not_between, province, 0, last_province))
            .within(Phrase(Text::place_table_row));
    return static_cast<std::size_t>(province) + static_cast<std::size_t>(column.index) * rows;
}

} // namespace

ProvinceTable::ProvinceTable()
    : cells_(rows * table_columns), change_of_(rows * table_columns, unchanged) {}

const std::string& ProvinceTable::cell(int province, TableColumn column) const {
    return cells_[position(province, column)];
}

void ProvinceTable::write(int province, TableColumn column, std::string_view text) {
    const std::size_t at = position(province, column);
    std::string& cell = cells_[at];
    if (cell == text)
        return;
    ++version_;
    std::int32_t& change = change_of_[at];
    if (change == unchanged) {
        change = static_cast<std::int32_t>(changes_.size());
        changes_.push_back({province, column, std::exchange(cell, std::string(text))});
        return;
    }
    cell = text;
    if (changes_[static_cast<std::size_t>(change)].before == text)
        forget_change(at);
}

void ProvinceTable::load(int province, TableColumn column, std::string_view text) {
    const std::size_t at = position(province, column);
    ++version_;
    cells_[at] = text;
    if (change_of_[at] != unchanged)
        forget_change(at);
}

void ProvinceTable::forget_change(std::size_t at) {
    const auto change = static_cast<std::size_t>(std::exchange(change_of_[at], unchanged));
    if (change + 1 != changes_.size()) {
        changes_[change] = std::move(changes_.back());
        change_of_[position(changes_[change].province, changes_[change].column)] =
            static_cast<std::int32_t>(change);
    }
    changes_.pop_back();
}

void ProvinceTable::mark_saved() {
    for (const Change& change : changes_)
        change_of_[position(change.province, change.column)] = unchanged;
    changes_.clear();
}

std::span<const std::string> ProvinceTable::column(TableColumn column) const {
    check_column(column);
    return std::span(cells_).subspan(static_cast<std::size_t>(column.index) * rows, rows);
}

} // namespace data
