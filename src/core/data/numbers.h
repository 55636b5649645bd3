#pragma once

#include "data/place.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace data {

/// Returns the longest decimal number that the text begins with: leading blanks and tabs are
/// skipped, "." separates the decimals, reading stops at the first other character. 0 without one.
double leading_number(std::string_view text);

/// Returns whether the whole text is a decimal number, blanks around it aside.
bool is_number(std::string_view text);

/// Returns whether the whole text is a whole number, blanks around it aside.
bool is_whole_number(std::string_view text);

/// Returns the number rounded to a whole one, halves to the even neighbour.
double round_half_even(double number);

/// Returns the number rounded half to even; throws overflow outside -32768 to 32767, with `place`.
std::int16_t to_int16(double number, const Phrase& place);

/// Returns the number in decimal, never with an exponent: at most 15 significant digits and no idle
/// zeros ("130.25"). An infinite number is written as the largest one, what is no number as "0".
std::string to_text(double number);

} // namespace data
