#pragma once

#include "data/columns.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// Identifiers run from 0 to this one; row 0 is never filled from a file.
inline constexpr int last_province = 2018;
inline constexpr int provinces_rows = last_province + 1;

/// A cell that differs from what a file last gave it or took from it.
struct Change {
    int province;
    TableColumn column;
    std::string before;
};

/// Every value of every province, as text. Created empty, never resized or cleared.
class ProvinceTable {
  public:
    ProvinceTable();

    /// Returns the cell's text. Throws subscript out of range.
    const std::string& cell(int province, TableColumn column) const;

    /// Replaces the cell's text by what the user entered. Throws subscript out of range.
    void write(int province, TableColumn column, std::string_view text);

    /// Replaces the cell's text by what the province file holds: the cell is as in its file then.
    /// Throws subscript out of range.
    void load(int province, TableColumn column, std::string_view text);

    /// Returns the column's cells, indexed by province identifier. Throws subscript out of range.
    std::span<const std::string> column(TableColumn column) const;

    /// Returns the cells that differ from what a file last gave them or took from them, in no
    /// order; at the start all cells are as in their file.
    std::span<const Change> changes() const { return changes_; }
    bool has_unsaved_changes() const { return !changes_.empty(); }

    /// Tells the table that a file took all cells.
    void mark_saved();

    /// Returns a number that grows with every write and every loading of a text.
    std::uint64_t version() const { return version_; }

  private:
    void forget_change(std::size_t position);

    std::vector<std::string> cells_; // column by column: a merged value walks one column
    std::vector<Change> changes_;
    std::vector<std::int32_t> change_of_; // by cell: its place in changes_, or unchanged
    std::uint64_t version_ = 0;
};

} // namespace data
