#include "data/province_file.h"

#include "data/numbers.h"
#include "data/province_format.h"
#include "data/run_time_error.h"

#include <array>
#include <charconv>
#include <span>

namespace data {

namespace {

constexpr std::size_t told_lines = 3;
constexpr std::string_view unread_columns = ";0;0";

[[noreturn]] void throw_too_few_fields(int line, int province, TableColumn column) {
    const FileColumn missing = file_column(column);
    throw RunTimeError(ErrorNumber::invalid_procedure_call,
                       Phrase(Text::reason_line_ends, file_column(first_unread).number))
        .within(Phrase(Text::place_column, missing.number, header(missing)))
        .within(Phrase(Text::place_province, province))
        .within(Phrase(Text::place_line, line));
}

/// Fills one row from the line's fields behind its identifier.
void read_fields(std::string_view line, int province, int line_number, ProvinceTable& table,
                 Source source) {
    const auto first = line.find(separator);
    if (first == std::string_view::npos)
        throw_too_few_fields(line_number, province, TableColumn{0});
    auto fields = line.substr(first + 1);
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

ReadReport read_provinces(std::string_view bytes, ProvinceTable& table, Source source,
                          BadLine bad_line) {
    ReadReport report;
    report.has_carriage_return = bytes.find('\r') != std::string_view::npos;
    while (!bytes.empty()) {
        const auto line = take_line(bytes);
        ++report.lines;
        if (report.lone_line_feeds.size() < told_lines && line.find('\n') != line.npos)
            report.lone_line_feeds.push_back(report.lines);
        const double identifier = leading_number(line);
        if (!(identifier >= 1 && identifier <= last_province))
            continue;
        const int province = static_cast<int>(round_half_even(identifier));
        try {
            read_fields(line, province, report.lines, table, source);
        } catch (const RunTimeError&) {
            if (bad_line == BadLine::ends_reading)
                throw;
            continue;
        }
        ++report.provinces;
    }
    return report;
}

std::string write_provinces(const ProvinceTable& table) {
    std::string bytes;
    bytes.reserve(std::size_t{1} << 20U);
    bytes.append(header_line()).append(line_end);
    bytes.append(terra_incognita.line).append(line_end);

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
    return bytes.append(filler.line).append(line_end);
}

} // namespace data
