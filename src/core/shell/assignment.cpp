#include "shell/assignment.h"

#include "data/numbers.h"
#include "data/text.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace shell {

namespace {

using data::FileColumn;

constexpr int first_column = 2;
constexpr int last_column = data::file_column(data::first_unread).number - 1;

std::string_view without_blanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

[[noreturn]] void refuse(std::string_view name, const std::string& reason) {
    throw std::invalid_argument("\"" + std::string(name) + "\" " + reason);
}

/// Returns the columns that the name stands for.
std::vector<FileColumn> columns_named(std::string_view name) {
    const auto wanted = without_blanks(name);
    std::vector<FileColumn> columns;
    if (wanted.empty())
        return columns; // a column without a header is reached by its number only
    for (FileColumn column{first_column}; column.number <= last_column; ++column.number) {
        if (wanted == std::to_string(column.number) ||
            data::equal_ignoring_case(wanted, without_blanks(data::header(column))))
            columns.push_back(column);
    }
    return columns;
}

} // namespace

FileColumn read_column(std::string_view name) {
    const auto columns = columns_named(name);
    if (columns.empty())
        refuse(name, "is neither a column's number from 2 to 56 nor a column's header");
    if (columns.size() > 1)
        refuse(name, "is the header of several columns, use the number of one");
    return columns.front();
}

Assignment read_assignment(std::string_view text) {
    const auto equals = text.find('=');
    if (equals == std::string_view::npos)
        refuse(text, "is not COLUMN=VALUE");
    const auto name = text.substr(0, equals);
    const auto value = text.substr(equals + 1);
    const auto column = read_column(name);
    constexpr std::string_view breaks_line(";\r\n\0", 4);
    if (value.find_first_of(breaks_line) != std::string_view::npos)
        refuse(name, "cannot hold a value with a semicolon, a line end or a NUL byte");
    return {column, std::string(value)};
}

void assign(data::ProvinceTable& table, const editor::Selection& selection,
            const Assignment& assignment) {
    for (const int province : selection.provinces())
        table.write(province, data::table_column(assignment.column), assignment.value);
}

} // namespace shell
