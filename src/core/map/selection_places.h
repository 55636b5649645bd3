#pragma once

#include "editor/selection.h"
#include "map/province_index.h"
#include "map/read_row.h"

#include <optional>

/// Where the selected provinces lie on the ID map.
namespace map {

/// Returns the box around all selected provinces; nothing when none of them has a pixel.
std::optional<Box> box_of(const ProvinceIndex& index, const editor::Selection& selection);

/// Returns the place of the first selected province that has a pixel; nothing (null) without one.
const ProvincePlace* first_place(const ProvinceIndex& index, const editor::Selection& selection);

/// Returns whether a pixel of a selected province lies in the view. What the index cannot tell is
/// read from the ID map: of every `step` rows and columns one, as many as the view shows.
bool is_in_view(const ProvinceIndex& index, const editor::Selection& selection, const Box& view,
                int step, const ReadRow& read_row);

} // namespace map
