#pragma once

#include "data/province_table.h"
#include "editor/selection.h"

#include <string>
#include <string_view>

namespace shell {

/// A value for one column, as the command line gives it.
struct Assignment {
    data::FileColumn column;
    std::string value;
};

/// Returns the column that is named by its number from 2 to 56, or by its header, letter case and
/// the blanks around it aside. Throws std::invalid_argument with what is wrong: an unknown column,
/// a header that several columns have.
data::FileColumn read_column(std::string_view name);

/// Reads "COLUMN=VALUE". Throws what read_column() throws, and std::invalid_argument for a value
/// that would break its line.
Assignment read_assignment(std::string_view text);

/// Writes the value into that one cell of every selected province.
void assign(data::ProvinceTable& table, const editor::Selection& selection,
            const Assignment& assignment);

} // namespace shell
