#pragma once

#include "data/columns.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace data {

/// Identifiers run from 0 to this one; row 0 is never filled from a file.
inline constexpr int last_province = 2018;
inline constexpr int provinces_rows = last_province + 1;

/// Every value of every province, as text. Created empty, never resized or cleared.
class ProvinceTable {
  public:
    ProvinceTable();

    /// Returns the cell's text. Throws subscript out of range.
    const std::string& cell(int province, TableColumn column) const;

    /// Replaces the cell's text by what the user entered. Throws subscript out of range.
    void write(int province, TableColumn column, std::string_view text);

    /// Replaces the cell's text by what the province file holds: no change that needs saving.
    /// Throws subscript out of range.
    void load(int province, TableColumn column, std::string_view text);

    /// Returns the column's cells, indexed by province identifier. Throws subscript out of range.
    std::span<const std::string> column(TableColumn column) const;

    /// Returns whether a write has changed a cell since the table was last saved.
    bool has_unsaved_changes() const { return unsaved_changes_; }
    void mark_saved() { unsaved_changes_ = false; }

  private:
    std::string& at(int province, TableColumn column);

    std::vector<std::string> cells_; // column by column: a merged value walks one column
    bool unsaved_changes_ = false;
};

} // namespace data
