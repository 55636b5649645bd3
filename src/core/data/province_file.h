#pragma once

#include "data/province_table.h"

#include <string>
#include <string_view>
#include <vector>

namespace data {

/// What a reading found, for those who ask why nothing came of it.
struct ReadReport {
    int lines = 0;     // lines of the file, the header and the fixed rows among them
    int provinces = 0; // lines that filled a row of the table
    bool has_carriage_return = false;
    std::vector<int> lone_line_feeds = {}; // the first lines that hold one, from 1: rows are lost
};

/// What the bytes are of: the file whose values the table now has, or a copy of an earlier table,
/// whose values are changes that no file has yet.
enum class Source { file, copy };

/// What becomes of a province line with too few fields.
enum class BadLine { ends_reading, is_passed_over };

/// Reads the province file's bytes into the table; rows that the file lacks stay as they were.
/// Throws invalid procedure call for a line that ends the reading, with line, province and column
/// in its place; what was read before it stays in the table, and so do a bad line's own fields.
ReadReport read_provinces(std::string_view bytes, ProvinceTable& table,
                          Source source = Source::file, BadLine bad_line = BadLine::ends_reading);

/// Returns the whole table as a province file of 2021 lines.
std::string write_provinces(const ProvinceTable& table);

} // namespace data
