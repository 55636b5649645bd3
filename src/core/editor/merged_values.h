#pragma once

#include "data/province_table.h"
#include "editor/selection.h"

#include <string>

namespace editor {

/// What the selected provinces hold of a field together.
struct MergedValue {
    enum class State {
        none,      // nothing is selected
        differing, // they do not all hold the same text
        common,
    };
    State state = State::none;
    std::string text{}; // the common one in the spelling of the first province; else empty, but for
                        // the treaty's option

    friend bool operator==(const MergedValue&, const MergedValue&) = default;
};

/// Returns the field's value over the selected provinces; texts that differ in letter case only are
/// the same. A cell that reads "premier" or "null", in any letter case, is no text of its own: the
/// first counts as a province that was not looked at, the second as provinces that differ.
MergedValue merged_value(const data::ProvinceTable& table, const Selection& selection,
                         data::FieldNumber field);

} // namespace editor
