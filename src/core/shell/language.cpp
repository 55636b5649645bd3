#include "shell/language.h"

#include "data/records.h"
#include "data/run_time_error.h"
#include "data/text.h"

#include <algorithm>
#include <utility>

namespace shell {

namespace {

using data::equal_ignoring_case;

std::size_t list_index(std::string_view prefix) {
    const auto* found =
        std::find_if(value_lists.begin(), value_lists.end(),
                     [prefix](const ListInfo& list) { return list.prefix == prefix; });
    if (found == value_lists.end())
        throw data::RunTimeError(data::ErrorNumber::subscript_out_of_range,
                                 data::Phrase(Text::reason_unknown_list, prefix));
    return static_cast<std::size_t>(found - value_lists.begin());
}

void store(std::vector<Entry>& entries, const ListInfo& list, Entry entry, int line) {
    if (list.keeps_last)
        entries.clear();
    if (entries.size() == list.capacity)
        throw data::RunTimeError(
            data::ErrorNumber::subscript_out_of_range,
            data::Phrase(Text::reason_too_many_records, list.capacity, list.prefix))
            .within(data::Phrase(Text::place_line, line));
    entries.push_back(std::move(entry));
}

/// Fills text n of the array from the entry coded `before` n `after`.
template <std::size_t count>
void number_texts(std::array<std::string, count>& texts, std::span<const Entry> entries,
                  const std::string& before, const std::string& after) {
    for (std::size_t n = 1; n <= count; ++n) {
        const std::string key = before + std::to_string(n) + after;
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
            return equal_ignoring_case(entry.code, key);
        });
        if (found != entries.end())
            texts[n - 1] = found->text;
    }
}

} // namespace

LanguageTexts::LanguageTexts() {
    for (const auto& row : data::texts)
        own_texts_[row.text] = row.english;
}

LanguageTexts::LanguageTexts(std::string_view bytes) : LanguageTexts() {
    data::RecordReader reader(bytes);
    while (!reader.at_end()) {
        const std::string key = reader.next();
        const int line = reader.line();
        std::string text = reader.next();
        const auto* list =
            std::find_if(value_lists.begin(), value_lists.end(), [&](const ListInfo& candidate) {
                return data::starts_with_ignoring_case(key, candidate.prefix);
            });
        if (list != value_lists.end())
            store(lists_[static_cast<std::size_t>(list - value_lists.begin())], *list,
                  {key.substr(list->prefix.size()), std::move(text)}, line);
        else if (data::starts_with_ignoring_case(key, data::text_prefix))
            take_own_text(std::string_view(key).substr(data::text_prefix.size()), std::move(text));
    }
    number_texts(status_texts_, this->list("MESS_"), "bar(", ")");
    number_texts(message_texts_.values, this->list("MESSAGE_"), "mess", "");
}

void LanguageTexts::take_own_text(std::string_view key, std::string text) {
    const auto* row =
        std::find_if(data::texts.begin(), data::texts.end(), [key](const data::TextInfo& info) {
            return equal_ignoring_case(info.key, key);
        });
    if (row != data::texts.end())
        own_texts_[row->text] = std::move(text);
}

std::string LanguageTexts::text(const std::exception& error) const {
    const auto* run_time_error = dynamic_cast<const data::RunTimeError*>(&error);
    return run_time_error ? run_time_error->in(dictionary()) : error.what();
}

std::string LanguageTexts::text(const data::Place& place) const {
    return place.in(dictionary());
}

data::Dictionary LanguageTexts::dictionary() const {
    return [this](Text wanted) -> std::string_view { return own_texts_[wanted]; };
}

std::span<const Entry> LanguageTexts::list(std::string_view prefix) const {
    return lists_[list_index(prefix)];
}

std::optional<std::string> LanguageTexts::caption(std::string_view key) const {
    for (const auto& entry : list("MENU_")) {
        if (equal_ignoring_case(entry.code, key))
            return entry.text;
    }
    return std::nullopt;
}

std::optional<std::string> LanguageTexts::exact_caption(std::string_view key) const {
    std::optional<std::string> caption;
    for (const auto& entry : list("MENU_")) {
        if (entry.code == key)
            caption = entry.text;
    }
    return caption;
}

const std::string& LanguageTexts::message(data::Message message) const {
    return message_texts_[message];
}

const std::string& LanguageTexts::status(int number) const {
    return status_texts_.at(static_cast<std::size_t>(number - 1));
}

std::string code_of_text(std::span<const Entry> list, std::size_t capacity, std::string_view text) {
    for (const auto& entry : list) {
        if (equal_ignoring_case(entry.text, text))
            return entry.code;
    }
    if (text.empty() && list.size() < capacity)
        return {};
    throw data::RunTimeError(data::ErrorNumber::subscript_out_of_range,
                             data::Phrase(Text::reason_unknown_text, text));
}

int index_of_code(std::span<const Entry> list, std::string_view code) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const Entry& entry) {
        return equal_ignoring_case(entry.code, code);
    });
    return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

std::size_t capacity(std::string_view prefix) {
    return value_lists[list_index(prefix)].capacity;
}

} // namespace shell
