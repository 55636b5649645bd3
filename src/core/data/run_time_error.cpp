#include "data/run_time_error.h"

#include <utility>

namespace data {

namespace {

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
