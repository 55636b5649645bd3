#include "data/province_file.h"

#include "data/numbers.h"
#include "data/run_time_error.h"

#include <array>
#include <charconv>
#include <span>

namespace data {

namespace {

constexpr char separator = ';';
constexpr std::string_view line_end = "\r\n";
constexpr std::string_view unread_columns = ";0;0";

constexpr std::string_view terra_incognita =
    "0;Terra Incognita;inland;exotic;none;0;0;0;0;0;0;0;0;8;0;0;0;0;0;nothing;0;-3;0;0;0;0;0;0;"
    "9472;3647;5740;4104;0;0;9472;3647;0;-100;-100;0;-100;-100;0;-100;-100;0;-100;-100;0;-;-;-;"
    "#N/A;0;0;0;#N/A;-1;-1";
constexpr std::string_view filler =
    "-1;Filler;inland;exotic;none;-1;-1;-1;-1;-1;0;-1;-1;9;0;0;0;0;-1;nothing;0;-1;-1;-1;-1;"
    "-1;-1;-1;-1;-1;-1;-1;-1;-1;-1;-1;0;0;0;0;0;0;0;0;0;0;0;0;0;;;;#N/A;0;0;0;0;0;0";

/// Takes the next line from the bytes. A line ends at a carriage return only; the line feed behind
/// it belongs to the line end.
std::string_view take_line(std::string_view& bytes) {
    const auto end = bytes.find('\r');
    const auto line = bytes.substr(0, end);
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    if (bytes.starts_with('\n'))
        bytes.remove_prefix(1);
    return line;
}

[[noreturn]] void throw_too_few_fields(int line, int province, TableColumn column) {
    const FileColumn missing = file_column(column);
    throw RunTimeError(ErrorNumber::invalid_procedure_call,
                       "line " + std::to_string(line) + ", province " + std::to_string(province) +
                           ", column " + std::to_string(missing.number) + " (" +
                           std::string(header(missing)) + "): the line ends here, at least " +
                           std::to_string(file_column(first_unread).number) +
                           " fields separated by \";\" were expected");
}

/// Fills one row from the line's fields behind its identifier.
void read_fields(std::string_view fields, int province, int line_number, ProvinceTable& table,
                 Source source) {
    for (TableColumn column{0}; column.index < first_unread.index; ++column.index) {
        const auto end = fields.find(separator);
        if (end == std::string_view::npos)
            throw_too_few_fields(line_number, province, column);
        if (source == Source::file)
            table.load(province, column, fields.substr(0, end));
        else
            table.write(province, column, fields.substr(0, end));
        fields.remove_prefix(end + 1);
    }
}

} // namespace

ReadReport read_provinces(std::string_view bytes, ProvinceTable& table, Source source) {
    ReadReport report;
    report.has_carriage_return = bytes.find('\r') != std::string_view::npos;
    while (!bytes.empty()) {
        const auto line = take_line(bytes);
        ++report.lines;
        const double identifier = leading_number(line);
        if (!(identifier >= 1 && identifier <= last_province))
            continue;
        const int province = static_cast<int>(round_half_even(identifier));
        const auto first = line.find(separator);
        if (first == std::string_view::npos)
            throw_too_few_fields(report.lines, province, TableColumn{0});
        read_fields(line.substr(first + 1), province, report.lines, table, source);
        ++report.provinces;
    }
    return report;
}

std::string write_provinces(const ProvinceTable& table) {
    std::string bytes;
    bytes.reserve(std::size_t{1} << 20U);
    for (int column = 1; column <= file_columns; ++column) {
        if (column > 1)
            bytes += separator;
        bytes += header(FileColumn{column});
    }
    bytes.append(line_end).append(terra_incognita).append(line_end);

    std::array<std::span<const std::string>, first_unwritten.index> columns;
    for (TableColumn column{0}; column.index < first_unwritten.index; ++column.index)
        columns[static_cast<std::size_t>(column.index)] = table.column(column);

    std::array<char, 8> digits{};
    for (int province = 1; province <= last_province; ++province) {
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), province).ptr;
        bytes.append(digits.data(), end);
        for (const auto& column : columns) {
            bytes += separator;
            bytes += column[static_cast<std::size_t>(province)];
        }
        bytes.append(unread_columns).append(line_end);
    }
    return bytes.append(filler).append(line_end);
}

} // namespace data
