#include "data/text.h"

#include <algorithm>
#include <array>

namespace data {

namespace {

constexpr std::array<char, 256> lower_case = [] {
    std::array<char, 256> table{};
    for (std::size_t code = 0; code < table.size(); ++code) {
        const bool ascii_capital = code >= 'A' && code <= 'Z';
        const bool accented_capital = code >= 0xC0 && code <= 0xDE && code != 0xD7;
        const bool capital_of_the_upper_controls = code == 0x8A || code == 0x8C || code == 0x8E;
        std::size_t folded = code;
        if (ascii_capital || accented_capital)
            folded = code + 0x20;
        else if (capital_of_the_upper_controls)
            folded = code + 0x10;
        else if (code == 0x9F)
            folded = 0xFF;
        table[code] = static_cast<char>(folded);
    }
    return table;
}();

/// Returns the lower-case form of the character, itself when it is no capital letter.
char fold(char character) {
    return lower_case[static_cast<unsigned char>(character)];
}

bool same_letter(char left, char right) {
    return fold(left) == fold(right);
}

} // namespace

bool equal_ignoring_case(std::string_view left, std::string_view right) {
    // Most compared texts are equal to the byte, and that test is many times faster.
    return left.size() == right.size() &&
           (left == right || std::equal(left.begin(), left.end(), right.begin(), same_letter));
}

bool less_ignoring_case(std::string_view left, std::string_view right) {
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(), [](char one, char other) {
            return static_cast<unsigned char>(fold(one)) < static_cast<unsigned char>(fold(other));
        });
}

bool starts_with_ignoring_case(std::string_view text, std::string_view prefix) {
    return equal_ignoring_case(text.substr(0, prefix.size()), prefix);
}

std::size_t find_ignoring_case(std::string_view text, std::string_view wanted, std::size_t from) {
    if (from > text.size())
        return std::string_view::npos;
    const auto begin = text.begin() + static_cast<std::ptrdiff_t>(from);
    const auto found = std::search(begin, text.end(), wanted.begin(), wanted.end(), same_letter);
    if (found == text.end() && !wanted.empty())
        return std::string_view::npos;
    return static_cast<std::size_t>(found - text.begin());
}

bool is_blank(std::string_view text) {
    return text.empty() || text == "-" || text == "#N/A";
}

std::string with_decimal_point(std::string_view text) {
    std::string result(text);
    if (const auto comma = result.find(','); comma != std::string::npos)
        result[comma] = '.';
    return result;
}

std::string filled(std::string_view pattern, std::span<const std::string_view> values) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool marked = pattern[at] == '%' && at + 1 < pattern.size();
        const auto number =
            marked ? static_cast<std::size_t>(pattern[at + 1] - '1') : values.size();
        if (number < values.size()) {
            text += values[number];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

} // namespace data
