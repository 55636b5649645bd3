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

/// Reads "COLUMN=VALUE": a column's number from 2 to 56, or its header, letter case and the blanks
/// around it aside. Throws std::invalid_argument with what is wrong: an unknown column, a header
/// that several columns have, a value that would break its line.
Assignment read_assignment(std::string_view text);

/// Writes the value into that one cell of every selected province.
void assign(data::ProvinceTable& table, const editor::Selection& selection,
            const Assignment& assignment);

} // namespace shell
