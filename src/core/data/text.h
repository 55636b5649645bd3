#pragma once

#include <span>
#include <string>
#include <string_view>

/// Texts are Windows-1252 bytes; these comparisons fold letter case in that page.
namespace data {

/// Returns whether both texts are the same but for letter case.
bool equal_ignoring_case(std::string_view left, std::string_view right);

/// Returns whether the left text comes before the right one, byte by byte and letter case aside.
bool less_ignoring_case(std::string_view left, std::string_view right);

/// Returns whether the text begins with the prefix, letter case aside.
bool starts_with_ignoring_case(std::string_view text, std::string_view prefix);

/// Returns the position of the first occurrence at or after `from`, letter case aside; npos if
/// none.
std::size_t find_ignoring_case(std::string_view text, std::string_view wanted,
                               std::size_t from = 0);

/// Returns whether the text stands for no value, in one of the spellings of the game's files.
bool is_blank(std::string_view text);

/// Returns the text with its first comma turned into a decimal point.
std::string with_decimal_point(std::string_view text);

/// Returns the pattern with %1 to %9 replaced by the first value, the second, and so on; one that
/// has no value stays.
std::string filled(std::string_view pattern, std::span<const std::string_view> values);

} // namespace data
