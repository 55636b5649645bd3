#pragma once

#include "data/province_table.h"
#include "editor/fields.h"
#include "editor/merged_values.h"
#include "editor/selection.h"

#include <string>
#include <string_view>

/// What choosing an option or pressing a box writes.
namespace editor {

/// Writes the option's code into the field of every selected province; the goods also set the mine
/// flag, and the treaty writes both of its fields or, for a code that is none of its own, none.
/// Returns in how many provinces that changed something.
int choose(data::ProvinceTable& table, const Selection& selection, const Field& field,
           std::string_view code);

/// Returns what pressing the field's box writes while it is checked or not.
std::string_view value_after_press(const Field& field, bool checked);

/// Returns whether the field's box is checked for the value.
bool is_checked(const Field& field, std::string_view value);

/// Returns the province's value as the panel shows it: the treaty's is the code of the option that
/// both treaty fields together mean. Throws subscript out of range.
std::string value_of(const data::ProvinceTable& table, int province, const Field& field);

/// Returns the field's merged value as the panel shows it: the treaty's is the code of the option
/// that both merged treaty fields together mean; they differ where it is not every province's own.
MergedValue shown_value(const data::ProvinceTable& table, const Selection& selection,
                        const Field& field);

} // namespace editor
