#include "editor/differing_values.h"

#include "data/text.h"
#include "editor/coded_choices.h"

#include <algorithm>
#include <map>

namespace editor {

namespace {

constexpr std::size_t most_told = 3;

struct IgnoringCase {
    bool operator()(const std::string& left, const std::string& right) const {
        return data::less_ignoring_case(left, right);
    }
};

} // namespace

DifferingValues differing_values(const data::ProvinceTable& table, const Selection& selection,
                                 const Field& field) {
    std::map<std::string, int, IgnoringCase> provinces_of;
    for (const int province : selection.provinces())
        ++provinces_of[value_of(table, province, field)];

    DifferingValues values;
    values.count = static_cast<int>(provinces_of.size());
    for (const auto& [text, provinces] : provinces_of)
        values.most_frequent.push_back({text, provinces});
    std::stable_sort(
        values.most_frequent.begin(), values.most_frequent.end(),
        [](const auto& one, const auto& other) { return one.provinces > other.provinces; });
    if (values.most_frequent.size() > most_told)
        values.most_frequent.resize(most_told);
    return values;
}

} // namespace editor
