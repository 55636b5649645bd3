#include "data/run_time_error.h"

#include <utility>

namespace data {

namespace {

Text words_of(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::invalid_procedure_call:
        return Text::error_invalid_procedure_call;
    case ErrorNumber::overflow:
        return Text::error_overflow;
    case ErrorNumber::subscript_out_of_range:
        return Text::error_subscript_out_of_range;
    case ErrorNumber::file_not_found:
        return Text::error_file_not_found;
    case ErrorNumber::disk_full:
        return Text::error_disk_full;
    case ErrorNumber::input_past_end:
        return Text::error_input_past_end;
    case ErrorNumber::permission_denied:
        return Text::error_permission_denied;
    case ErrorNumber::path_file_access:
        return Text::error_path_file_access;
    case ErrorNumber::path_not_found:
        return Text::error_path_not_found;
    }
    return Text::error_unknown;
}

std::string text_of(ErrorNumber number, const Place& place, const Dictionary& dictionary) {
    const Phrase heading(Text::error_heading, static_cast<int>(number),
                         dictionary(words_of(number)));
    return heading.in(dictionary) + '\n' + place.in(dictionary);
}

/// A NUL would end the words of an exception.
std::string without_nul(std::string text) {
    for (auto at = text.find('\0'); at != std::string::npos; at = text.find('\0', at))
        text.replace(at, 1, "\\0");
    return text;
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number, Place place)
    : std::runtime_error(without_nul(text_of(number, place, english))),
      number_(number),
      place_(std::move(place)) {}

Text RunTimeError::words() const {
    return words_of(number_);
}

std::string RunTimeError::in(const Dictionary& dictionary) const {
    return text_of(number_, place_, dictionary);
}

RunTimeError RunTimeError::within(Phrase outer) const {
    return {number_, place_.within(std::move(outer))};
}

} // namespace data
