#include "shell/table_comparison.h"

#include "shell/problem.h"

#include <algorithm>
#include <array>
#include <span>

namespace shell {

namespace {

using Columns = std::array<std::span<const std::string>, data::first_unread.index>;

Columns columns_of(const data::ProvinceTable& table) {
    Columns columns;
    for (data::TableColumn column{0}; column.index < data::first_unread.index; ++column.index)
        columns.at(static_cast<std::size_t>(column.index)) = table.column(column);
    return columns;
}

} // namespace

std::vector<CellDifference> compare(const data::ProvinceTable& before,
                                    const data::ProvinceTable& now) {
    std::vector<CellDifference> differences;
    const Columns old_columns = columns_of(before);
    const Columns columns = columns_of(now);
    for (std::size_t row = 0; row < data::provinces_rows; ++row) {
        for (std::size_t at = 0; at < columns.size(); ++at) {
            const auto& old_text = old_columns[at][row];
            const auto& text = columns[at][row];
            if (old_text != text)
                differences.push_back({static_cast<int>(row),
                                       data::file_column({static_cast<int>(at)}), old_text, text});
        }
    }
    return differences;
}

int differing_provinces(const data::ProvinceTable& before, const data::ProvinceTable& now) {
    std::array<bool, data::provinces_rows> differs = {};
    for (data::TableColumn column{0}; column.index < data::first_unread.index; ++column.index) {
        const auto old_cells = before.column(column);
        const auto cells = now.column(column);
        for (std::size_t row = 0; row < cells.size(); ++row)
            differs[row] = differs[row] || old_cells[row] != cells[row];
    }
    return static_cast<int>(std::count(differs.begin(), differs.end(), true));
}

std::string printed_line(const CellDifference& difference) {
    return on_one_line("province " + std::to_string(difference.province) + ", " +
                       shown_column(difference.column) + ": \"" + difference.before + "\" -> \"" +
                       difference.now + "\"");
}

} // namespace shell
