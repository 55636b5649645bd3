#pragma once

#include "data/columns.h"
#include "data/province_table.h"
#include "shell/language.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace shell {

/// The line of the province file that gave a province its values, by identifier; 0 without one.
using ProvinceLines = std::array<int, data::provinces_rows>;

/// Something that a check of a province file or table found.
struct Problem {
    Text what;
    int line = 0;     // of the file that was read; 0 for none
    int province = 0; // 0 for none
    std::optional<data::FileColumn> column = {};
    std::string value = {};  // what was found; %1 of the text
    std::string detail = {}; // %2 of the text
    bool is_hint = false;    // it may be meant so
};

/// Returns what is wrong, in the user's language, and of a hint that it is one.
std::string text_of(const Problem& problem, const LanguageTexts& language);

/// Returns "N (header)" for the column, "N" for one without a header.
std::string shown_column(data::FileColumn column);

/// Returns the text with every control character as a blank, so that it stays on its line.
std::string on_one_line(std::string text);

/// Returns "FILE:LINE: province N, COLUMN (header): what is wrong", without what does not apply.
std::string printed_line(const Problem& problem, std::string_view file,
                         const LanguageTexts& language);

} // namespace shell
