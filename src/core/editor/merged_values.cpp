#include "editor/merged_values.h"

#include "data/text.h"

namespace editor {

namespace {

// The game's files cannot tell these two words from values: a value spelled like one of them
// behaves as the mark does.
constexpr std::string_view no_province_yet = "premier";
constexpr std::string_view values_differ = "null";

std::string_view merged_value(std::span<const std::string> column, std::span<const int> selected) {
    std::string_view merged = no_province_yet;
    for (const int province : selected) {
        const std::string& cell = column[static_cast<std::size_t>(province)];
        if (merged == no_province_yet)
            merged = cell;
        else if (!data::equal_ignoring_case(merged, cell))
            return {};
    }
    return merged == no_province_yet || merged == values_differ ? std::string_view{} : merged;
}

} // namespace

MergedValues merged_values(const data::ProvinceTable& table, const Selection& selection) {
    MergedValues values;
    for (data::FieldNumber field{1}; field.number <= data::table_columns; ++field.number)
        values[field] =
            merged_value(table.column(data::table_column(field)), selection.provinces());
    return values;
}

} // namespace editor
