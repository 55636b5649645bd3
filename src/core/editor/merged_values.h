#pragma once

#include "data/province_table.h"
#include "editor/selection.h"

#include <string>

namespace editor {

using MergedValues = data::FieldArray<std::string>;

/// Returns each field's common value over the selected provinces, in the spelling of the first one;
/// empty where they differ in more than letter case, and where nothing is selected.
MergedValues merged_values(const data::ProvinceTable& table, const Selection& selection);

} // namespace editor
