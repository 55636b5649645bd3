#include "data/records.h"

#include "data/run_time_error.h"

#include <algorithm>

namespace data {

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

bool is_utf_16(std::string_view bytes) {
    if (bytes.size() < 2)
        return false;
    const bool is_marked = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    return is_marked || (bytes[0] == '\0') != (bytes[1] == '\0');
}

} // namespace

RecordReader::RecordReader(std::string_view bytes) : rest_(bytes) {
    if (is_utf_16(bytes))
        throw RunTimeError(ErrorNumber::invalid_procedure_call, Phrase(Text::reason_utf_16));
    if (rest_.starts_with(byte_order_mark))
        rest_.remove_prefix(byte_order_mark.size());
}

void RecordReader::drop(std::size_t count) {
    const auto dropped = rest_.substr(0, count);
    const auto line_feeds = std::count(dropped.begin(), dropped.end(), '\n');
    line_ += static_cast<int>(line_feeds);
    rest_.remove_prefix(dropped.size());
}

void RecordReader::drop_blanks() {
    drop(std::min(rest_.find_first_not_of(" \t"), rest_.size()));
}

void RecordReader::drop_separator() {
    if (rest_.starts_with("\r\n"))
        drop(2);
    else
        drop(1);
}

bool RecordReader::at_end() {
    drop(std::min(rest_.find_first_not_of(" \t\r\n"), rest_.size()));
    return rest_.empty();
}

std::string RecordReader::next() {
    drop_blanks();
    field_line_ = line_;
    if (rest_.empty())
        throw RunTimeError(ErrorNumber::input_past_end, Phrase(Text::reason_record_ends))
            .within(Phrase(Text::place_line, line_));

    std::string field;
    if (rest_.front() == '"') {
        const auto end = rest_.find_first_of("\"\r\n", 1);
        if (end == std::string_view::npos || rest_[end] != '"')
            throw RunTimeError(ErrorNumber::invalid_procedure_call, Phrase(Text::reason_open_quote))
                .within(Phrase(Text::place_line, line_));
        field = rest_.substr(1, end - 1);
        drop(end + 1);
        drop(std::min(rest_.find_first_of(",\r\n"), rest_.size()));
    } else {
        const auto end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
        field = rest_.substr(0, end);
        field.erase(field.find_last_not_of(" \t") + 1);
        drop(end);
    }
    drop_separator();
    return field;
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    std::copy_if(text.begin(), text.end(), std::back_inserter(result),
                 [](char c) { return c != '"' && c != '\r' && c != '\n'; });
    return result += '"';
}

} // namespace data
