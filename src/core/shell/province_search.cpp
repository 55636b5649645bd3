#include "shell/province_search.h"

#include "data/numbers.h"
#include "data/text.h"
#include "editor/coded_choices.h"
#include "shell/code_texts.h"
#include "shell/problem.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace shell {

namespace {

using Kind = SearchTarget::Kind;

constexpr auto treaty_field = data::field_number(data::column::treaty_spain);

const editor::Field& field_of(const SearchTarget& target) {
    return editor::fields[target.kind == Kind::treaty ? treaty_field : target.field];
}

/// Returns the texts of the target's codes; none where its values are no codes. What a single one
/// of the treaty's columns holds is no code, either: only both mean an option.
std::span<const Entry> texts_of_codes(const LanguageTexts& language, const SearchTarget& target) {
    const auto& field = field_of(target);
    const bool looks_at_shown_value = target.kind == target_of(field).kind;
    return looks_at_shown_value ? code_texts(language, field) : std::span<const Entry>();
}

/// Decides about one value at a time.
class Matcher {
  public:
    Matcher(const Search& search, std::span<const Entry> texts)
        : search_(search),
          texts_(texts),
          number_text_(data::with_decimal_point(search.text)),
          number_(data::leading_number(number_text_)) {}

    struct Verdict {
        bool is_hit;
        std::string shown;
    };

    Verdict verdict(std::string_view cell) const {
        const std::string_view text = text_of_code(texts_, cell);
        const bool has_other_text = !text.empty() && !data::equal_ignoring_case(text, cell);
        const bool matches_text = has_other_text && compares_texts() && matches(text);
        std::string shown(cell);
        if (has_other_text)
            shown.append(" (").append(text).append(")");
        return {(matches(cell) || matches_text) != is_negated(), std::move(shown)};
    }

    /// Returns whether a hit is a value that does not match.
    bool is_negated() const { return search_.comparison == Comparison::differs; }

  private:
    bool compares_texts() const { return search_.comparison <= Comparison::differs; }

    bool matches(std::string_view value) const {
        switch (search_.comparison) {
        case Comparison::contains:
            return data::find_ignoring_case(value, search_.text) != std::string_view::npos;
        case Comparison::equals:
        case Comparison::differs:
            return data::equal_ignoring_case(value, search_.text);
        case Comparison::is_empty:
            return data::is_blank(value);
        case Comparison::less:
            return are_numbers(value) && data::leading_number(value) < number_;
        case Comparison::greater:
            return are_numbers(value) && data::leading_number(value) > number_;
        }
        return false;
    }

    bool are_numbers(std::string_view value) const {
        return data::is_number(value) && data::is_number(number_text_);
    }

    const Search& search_;
    std::span<const Entry> texts_;
    std::string number_text_; // a comma is typed for the decimal point
    double number_;
};

std::vector<FoundProvince> find_by_name_or_city(const data::ProvinceTable& table,
                                                const Matcher& matcher) {
    const auto names = table.column(data::table_column(data::column::name));
    const auto cities = table.column(data::table_column(data::column::city_name));
    std::vector<FoundProvince> found;
    for (std::size_t row = 1; row < names.size(); ++row) {
        const bool name_hits = matcher.verdict(names[row]).is_hit;
        auto [city_hits, city] = matcher.verdict(cities[row]);
        if (matcher.is_negated() ? name_hits && city_hits : name_hits || city_hits)
            found.push_back({static_cast<int>(row), std::move(city)});
    }
    return found;
}

} // namespace

std::vector<SearchTarget> search_targets() {
    std::vector<SearchTarget> targets = {SearchTarget{Kind::name_or_city}};
    for (data::TableColumn column{0}; column.index < data::first_unread.index; ++column.index) {
        const auto field = data::field_number(data::file_column(column));
        if (field == treaty_field)
            targets.push_back(SearchTarget{Kind::treaty});
        targets.push_back({Kind::column, field});
    }
    return targets;
}

SearchTarget target_of(const editor::Field& field) {
    if (field.display == editor::Display::treaty)
        return SearchTarget{Kind::treaty};
    return {Kind::column, field.number};
}

std::vector<FoundProvince> find_provinces(const data::ProvinceTable& table,
                                          const LanguageTexts& language, const Search& search) {
    const Matcher matcher(search, texts_of_codes(language, search.target));
    if (search.target.kind == Kind::name_or_city)
        return find_by_name_or_city(table, matcher);
    const auto& field = field_of(search.target);
    // Many provinces hold what another one held before.
    std::unordered_map<std::string, Matcher::Verdict> verdicts;
    std::vector<FoundProvince> found;
    for (int province = 1; province <= data::last_province; ++province) {
        std::string value = search.target.kind == Kind::treaty
                                ? editor::value_of(table, province, field)
                                : table.cell(province, data::table_column(field.number));
        auto verdict = verdicts.find(value);
        if (verdict == verdicts.end())
            verdict = verdicts.emplace(value, matcher.verdict(value)).first;
        if (verdict->second.is_hit)
            found.push_back({province, verdict->second.shown});
    }
    return found;
}

std::string text_to_find(const LanguageTexts& language, const SearchTarget& target,
                         const std::string& value) {
    const auto entries = texts_of_codes(language, target);
    const std::string_view text = text_of_code(entries, value);
    const auto holders = std::count_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return data::equal_ignoring_case(entry.text, text) ||
               data::equal_ignoring_case(entry.code, text);
    });
    return std::string(!text.empty() && holders == 1 ? text : value);
}

} // namespace shell
