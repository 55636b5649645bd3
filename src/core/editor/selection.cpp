#include "editor/selection.h"

#include "data/numbers.h"
#include "data/run_time_error.h"

#include <algorithm>
#include <array>

namespace editor {

namespace {

using data::Phrase;
using data::Text;

[[noreturn]] void throw_no_such_province(double identifier) {
    throw data::RunTimeError(data::ErrorNumber::subscript_out_of_range,
                             Phrase(Text::reason_identifier, data::last_province))
        .within(Phrase(Text::place_province, data::to_text(identifier)))
        .within(Phrase(Text::place_selection));
}

} // namespace

Selection::Selection() : flags_(data::provinces_rows, 0) {}

bool Selection::contains(int province) const {
    if (province < 0 || province > data::last_province)
        throw_no_such_province(province);
    return flags_[static_cast<std::size_t>(province)] != 0;
}

void Selection::mark(double first, double last) {
    if (first > last)
        return;
    constexpr double end = data::provinces_rows;
    const int beyond = static_cast<int>(std::min(last + 1, end));
    for (int identifier = static_cast<int>(std::clamp(first, 1.0, end)); identifier < beyond;
         ++identifier)
        flags_[static_cast<std::size_t>(identifier)] = 1;
    if (last >= end)
        throw_no_such_province(std::max(first, end));
}

void Selection::list_provinces() {
    ++version_;
    provinces_.clear();
    for (int province = 0; province <= data::last_province; ++province) {
        if (flags_[static_cast<std::size_t>(province)] != 0)
            provinces_.push_back(province);
    }
}

void Selection::apply(std::string_view text) {
    std::fill(flags_.begin(), flags_.end(), 0);
    try {
        for (bool more = true; more;) {
            const auto end = text.find(';');
            const auto item = text.substr(0, end);
            const auto dash = item.find('-');
            const double last =
                data::leading_number(dash == std::string_view::npos ? item : item.substr(dash + 1));
            double first = last;
            if (dash == 0) // no first identifier: "-5" is 5
                first = std::max(last, 0.0);
            else if (dash != std::string_view::npos)
                first = data::leading_number(item.substr(0, dash));
            mark(data::round_half_even(first), data::round_half_even(last));
            more = end != std::string_view::npos;
            text.remove_prefix(more ? end + 1 : text.size());
        }
    } catch (const data::RunTimeError&) {
        list_provinces();
        throw;
    }
    list_provinces();
}

bool is_well_formed(std::string_view selection_text) {
    bool after_digit = false;
    return std::all_of(selection_text.begin(), selection_text.end(), [&](char character) {
        const bool digit = character >= '0' && character <= '9';
        const bool accepted = digit || (after_digit && (character == '-' || character == ';'));
        after_digit = digit;
        return accepted;
    });
}

std::string with_province(std::string_view selection_text, int province) {
    const std::string identifier = std::to_string(province);
    return selection_text.empty() ? identifier : std::string(selection_text) + ";" + identifier;
}

int write_values(data::ProvinceTable& table, const Selection& selection,
                 std::span<const FieldValue> values) {
    int changed_provinces = 0;
    for (const int province : selection.provinces()) {
        bool changed = false;
        for (const auto& [field, value] : values) {
            const auto column = data::table_column(field);
            changed = changed || table.cell(province, column) != value;
            table.write(province, column, value);
        }
        changed_provinces += changed ? 1 : 0;
    }
    return changed_provinces;
}

int changement(data::ProvinceTable& table, const Selection& selection, std::string_view value,
               data::FieldNumber field) {
    return write_values(table, selection, std::array{FieldValue{field, value}});
}

} // namespace editor
