#include "data/run_time_error.h"

#include <utility>

namespace data {

namespace {

/// Returns the platform's words for the number.
std::string_view words(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::invalid_procedure_call:
        return "Invalid procedure call or argument";
    case ErrorNumber::overflow:
        return "Overflow";
    case ErrorNumber::subscript_out_of_range:
        return "Subscript out of range";
    case ErrorNumber::file_not_found:
        return "File not found";
    case ErrorNumber::disk_full:
        return "Disk full";
    case ErrorNumber::input_past_end:
        return "Input past end of file";
    case ErrorNumber::permission_denied:
        return "Permission denied";
    case ErrorNumber::path_file_access:
        return "Path/File access error";
    case ErrorNumber::path_not_found:
        return "Path not found";
    }
    return "Unknown error";
}

std::string message(ErrorNumber number, std::string_view place) {
    std::string text = "Run-time error " + std::to_string(static_cast<int>(number)) + ": ";
    text.append(words(number));
    if (!place.empty())
        text += '\n';
    for (const char character : place) {
        if (character == '\0')
            text += "\\0"; // it would end the words of an exception
        else
            text += character;
    }
    return text;
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number, std::string place)
    : std::runtime_error(message(number, place)), number_(number), place_(std::move(place)) {}

RunTimeError RunTimeError::within(std::string_view outer) const {
    return {number_, std::string(outer) + ", " + place_};
}

} // namespace data
