#include "data/province_format.h"

#include <algorithm>

namespace data {

namespace {

/// Takes what stands before the mark, and the mark, from the text; without a mark all of it.
std::string_view take_until(std::string_view& text, char mark) {
    const auto taken = text.substr(0, text.find(mark));
    text.remove_prefix(std::min(taken.size() + 1, text.size()));
    return taken;
}

} // namespace

std::string header_line() {
    std::string line;
    for (const auto& header : headers) {
        if (&header != headers.data())
            line += separator;
        line += header;
    }
    return line;
}

std::string_view take_line(std::string_view& bytes) {
    const auto line = take_until(bytes, '\r');
    if (bytes.starts_with('\n'))
        bytes.remove_prefix(1);
    return line;
}

std::string_view take_field(std::string_view& line) {
    return take_until(line, separator);
}

} // namespace data
