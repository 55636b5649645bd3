#include "editor/merged_values.h"

#include "data/text.h"

namespace editor {

namespace {

using State = MergedValue::State;

bool counts_as_unseen(std::string_view cell) {
    return data::equal_ignoring_case(cell, "premier");
}

bool counts_as_differing(std::string_view cell) {
    return data::equal_ignoring_case(cell, "null");
}

} // namespace

MergedValue merged_value(const data::ProvinceTable& table, const Selection& selection,
                         data::FieldNumber field) {
    const auto column = table.column(data::table_column(field));
    const std::string* common = nullptr;
    bool is_unseen = true;
    for (const int province : selection.provinces()) {
        const std::string& cell = column[static_cast<std::size_t>(province)];
        if (is_unseen) {
            common = &cell;
            is_unseen = counts_as_unseen(cell);
        } else if (!data::equal_ignoring_case(*common, cell)) {
            return {State::differing};
        }
    }
    if (is_unseen)
        return {State::none};
    return counts_as_differing(*common) ? MergedValue{State::differing}
                                        : MergedValue{State::common, *common};
}

} // namespace editor
