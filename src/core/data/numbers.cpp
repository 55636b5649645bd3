#include "data/numbers.h"

#include "data/run_time_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace data {

double leading_number(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    text.remove_prefix(start);

    const bool negative = text.front() == '-';
    if (negative || text.front() == '+')
        text.remove_prefix(1);
    // The conversion below also takes words such as "inf" and a second sign.
    if (text.empty() || text.find_first_of("0123456789.") != 0)
        return 0;

    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error == std::errc::result_out_of_range) {
        const auto whole_part = text.substr(0, text.find_first_not_of("0123456789"));
        const bool large = whole_part.find_first_not_of('0') != std::string_view::npos;
        number = large ? std::numeric_limits<double>::infinity() : 0;
    }
    return negative ? -number : number;
}

namespace {

/// Takes the digits that the text begins with and returns how many they are.
std::size_t take_digits(std::string_view& text) {
    const auto digits = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(digits);
    return digits;
}

/// Returns the text without its sign and without the blanks around it.
std::string_view unsigned_part(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    text = text.substr(0, text.find_last_not_of(" \t") + 1);
    if (text.starts_with('-') || text.starts_with('+'))
        text.remove_prefix(1);
    return text;
}

} // namespace

bool is_number(std::string_view text) {
    text = unsigned_part(text);
    auto digits = take_digits(text);
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        digits += take_digits(text);
    }
    return digits > 0 && text.empty();
}

bool is_whole_number(std::string_view text) {
    text = unsigned_part(text);
    return take_digits(text) > 0 && text.empty();
}

double round_half_even(double number) {
    return std::nearbyint(number);
}

std::int16_t to_int16(double number, const Phrase& place) {
    constexpr auto least = std::numeric_limits<std::int16_t>::min();
    constexpr auto most = std::numeric_limits<std::int16_t>::max();
    const double rounded = round_half_even(number);
    if (!(rounded >= least && rounded <= most))
        throw RunTimeError(ErrorNumber::overflow,
                           Phrase(Text::reason_not_between, to_text(number), least, most))
            .within(place);
    return static_cast<std::int16_t>(rounded);
}

std::string to_text(double number) {
    constexpr int significant_digits = 15;
    constexpr double largest = std::numeric_limits<double>::max();
    std::array<char, 32> buffer{};
    const auto* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                    std::abs(std::clamp(number, -largest, largest)),
                                    std::chars_format::scientific, significant_digits - 1)
                          .ptr;
    const std::string_view written(buffer.data(), end); // "d.dddde+xx"
    const auto mark = written.find('e');
    if (mark == std::string_view::npos)
        return "0"; // no number at all

    std::string digits(written.substr(0, 1));
    digits += written.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty())
        return "0";
    int exponent = 0;
    const auto exponent_text = written.substr(written[mark + 1] == '+' ? mark + 2 : mark + 1);
    std::from_chars(exponent_text.data(), end, exponent);
    if (exponent < 0) {
        digits.insert(0, static_cast<std::size_t>(-exponent), '0');
        exponent = 0;
    }
    const auto whole_digits = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() > whole_digits)
        digits.insert(whole_digits, 1, '.');
    else
        digits.resize(whole_digits, '0');
    return number < 0 ? "-" + digits : digits;
}

} // namespace data
