#pragma once

#include "data/province_table.h"
#include "editor/fields.h"
#include "editor/selection.h"

#include <string>
#include <vector>

namespace editor {

/// Which values the selected provinces hold of a field; texts that differ in letter case only are
/// the same.
struct DifferingValues {
    struct Value {
        std::string text; // in the spelling of the first province that holds it
        int provinces = 0;
    };
    int count = 0;
    std::vector<Value>
        most_frequent; // at most three, the most frequent first, else by their letters
};

/// Returns the values as the panel shows each province's: the treaty's are the codes of its
/// options.
DifferingValues differing_values(const data::ProvinceTable& table, const Selection& selection,
                                 const Field& field);

} // namespace editor
