#include "shell/file_check.h"

#include "data/numbers.h"
#include "data/province_format.h"
#include "data/text.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace shell {

namespace {

using data::FileColumn;

constexpr char line_feed = '\n';
/// Reading needs the separator behind the last field that it takes.
constexpr int fields_to_read = data::file_column(data::first_unread).number;

/// The last columns of a line, from this one on, are never read, and saved as these texts.
constexpr FileColumn first_dropped = data::file_column(data::first_unread);
constexpr std::array<std::string_view, 3> saved_instead = {"", "0", "0"};

/// The rows of the game's own, each with whether the file has it.
struct ExpectedRow {
    data::FixedRow row;
    bool found = false;
};

int count_of(std::string_view text, char wanted) {
    return static_cast<int>(std::count(text.begin(), text.end(), wanted));
}

std::string_view identifier_of(std::string_view line) {
    return data::take_field(line);
}

class FileChecker {
  public:
    FileCheck run(std::string_view bytes) {
        do {
            ++line_;
            check_line(data::take_line(bytes));
        } while (!bytes.empty());
        for (const auto& dropped : dropped_)
            report_dropped(dropped);
        for (const auto& expected : expected_rows_) {
            if (!expected.found)
                add({.what = Text::problem_fixed_row_missing,
                     .value = std::string(expected.row.name)});
        }
        for (int province = 1; province <= data::last_province; ++province) {
            if (found_.lines.at(index(province)) == 0 && !passed_over_.at(index(province)))
                add({.what = Text::problem_province_missing, .province = province});
        }
        return std::move(found_);
    }

  private:
    /// What a dropped column held where it held something at first.
    struct Dropped {
        Problem first;
        int lines = 0;
    };

    static std::size_t index(int province) { return static_cast<std::size_t>(province); }

    void add(Problem problem) { found_.problems.push_back(std::move(problem)); }

    void check_line(std::string_view line) {
        const auto first = line.substr(0, line.find(line_feed));
        // A row behind a lone line feed is reported with it, and not as missing.
        for (auto rest = line.substr(first.size()); !rest.empty();) {
            rest.remove_prefix(1);
            pass_over(rest);
            rest.remove_prefix(std::min(rest.find(line_feed), rest.size()));
        }
        const int province = province_of(line);
        if (const int feeds = count_of(line, line_feed); feeds > 0)
            add({.what = Text::problem_lone_line_feeds,
                 .line = line_,
                 .province = province,
                 .value = std::to_string(feeds)});
        if (const int bytes = count_of(line, '\0'); bytes > 0)
            add({.what = Text::problem_nul_bytes,
                 .line = line_,
                 .province = province,
                 .value = std::to_string(bytes)});
        if (line_ == 1 && check_header(first))
            return;
        if (!first.empty() || line.empty())
            check_row(first, line, province);
    }

    /// Returns the identifier of the province whose row reading fills from the line; 0 for none.
    static int province_of(std::string_view line) {
        const double number = data::leading_number(line);
        const bool is_read = number >= 1 && number <= data::last_province;
        return is_read ? static_cast<int>(data::round_half_even(number)) : 0;
    }

    void pass_over(std::string_view row) {
        passed_over_.at(index(province_of(row))) = true;
        if (auto* expected = expected_row(identifier_of(row)))
            expected->found = true;
    }

    ExpectedRow* expected_row(std::string_view identifier) {
        if (!data::is_whole_number(identifier))
            return nullptr;
        auto* const found = std::find_if(
            expected_rows_.begin(), expected_rows_.end(), [&](const ExpectedRow& expected) {
                return data::leading_number(identifier) == expected.row.identifier;
            });
        return found == expected_rows_.end() ? nullptr : found;
    }

    /// Returns whether the first line is a header, be it the game's or not.
    bool check_header(std::string_view line) {
        compare(line, data::header_line(), Text::problem_header);
        return !data::is_number(identifier_of(line));
    }

    /// Reports the first column in which the line is not the game's.
    void compare(std::string_view line, std::string_view expected, Text what) {
        for (FileColumn column{1}; line != expected && column.number <= data::file_columns;
             ++column.number) {
            const auto field = data::take_field(line);
            const auto expected_field = data::take_field(expected);
            if (field == expected_field)
                continue;
            add({.what = what,
                 .line = line_,
                 .column = column,
                 .value = std::string(field),
                 .detail = std::string(expected_field)});
            return;
        }
    }

    void check_row(std::string_view row, std::string_view line, int province) {
        const auto identifier = identifier_of(row);
        if (auto* expected = expected_row(identifier)) {
            expected->found = true;
            compare(row, expected->row.line, Text::problem_fixed_row);
            return;
        }
        if (province == 0) {
            add({.what = Text::problem_identifier_unknown,
                 .line = line_,
                 .column = FileColumn{1},
                 .value = std::string(identifier),
                 .detail = std::to_string(data::last_province)});
            return;
        }
        check_identifier(identifier, province);
        check_fields(line, province);
        keep_dropped(row, province);
    }

    void check_identifier(std::string_view identifier, int province) {
        if (!data::is_whole_number(identifier))
            add({.what = Text::problem_identifier_not_whole,
                 .line = line_,
                 .province = province,
                 .column = FileColumn{1},
                 .value = std::string(identifier),
                 .detail = std::to_string(province)});
        int& line_of_province = found_.lines.at(index(province));
        if (line_of_province != 0)
            add({.what = Text::problem_identifier_twice,
                 .line = line_,
                 .province = province,
                 .column = FileColumn{1},
                 .value = std::to_string(province),
                 .detail = std::to_string(line_of_province)});
        line_of_province = line_;
    }

    void check_fields(std::string_view line, int province) {
        const int fields = count_of(line, data::separator) + 1;
        const bool can_be_read = fields >= fields_to_read;
        const bool is_whole = line.find(line_feed) == std::string_view::npos;
        if (can_be_read && (fields == data::file_columns || !is_whole))
            return;
        const auto what = !can_be_read                  ? Text::problem_unreadable_line
                          : fields < data::file_columns ? Text::problem_field_count
                                                        : Text::problem_further_fields;
        add({.what = what,
             .line = line_,
             .province = province,
             .value = std::to_string(fields),
             .detail = std::to_string(can_be_read ? data::file_columns : fields_to_read)});
    }

    void keep_dropped(std::string_view row, int province) {
        for (int passed = 1; passed < first_dropped.number; ++passed)
            data::take_field(row);
        for (std::size_t at = 0; at < saved_instead.size(); ++at) {
            const auto text = data::take_field(row);
            if (data::is_blank(text) || text == saved_instead[at])
                continue;
            if (dropped_[at].lines++ == 0)
                dropped_[at].first = {.what = Text::problem_text_not_kept,
                                      .line = line_,
                                      .province = province,
                                      .column =
                                          FileColumn{first_dropped.number + static_cast<int>(at)},
                                      .value = std::string(text)};
        }
    }

    /// One problem for a column: a game's file has the text in every line.
    void report_dropped(const Dropped& dropped) {
        if (dropped.lines == 0)
            return;
        Problem problem = dropped.first;
        problem.detail = std::to_string(dropped.lines);
        add(std::move(problem));
    }

    int line_ = 0;
    FileCheck found_;
    std::array<ExpectedRow, 2> expected_rows_ = {{{data::terra_incognita}, {data::filler}}};
    std::array<Dropped, saved_instead.size()> dropped_ = {};
    std::array<bool, data::provinces_rows> passed_over_ = {};
};

} // namespace

FileCheck check_file(std::string_view bytes) {
    return FileChecker().run(bytes);
}

} // namespace shell
