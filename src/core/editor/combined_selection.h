#pragma once

#include <span>
#include <string>
#include <vector>

/// What becomes of a selection together with other provinces. All identifiers stand in increasing
/// order, each once.
namespace editor {

enum class Combination {
    replace, // the others instead
    add,
    remove,
    keep, // only what is in both
};

/// Returns the provinces that are selected then.
std::vector<int> combined(std::span<const int> selected, std::span<const int> others,
                          Combination combination);

/// Returns the provinces 1 to 2018 that are not selected.
std::vector<int> inverted(std::span<const int> selected);

/// Returns the shortest selection text that names the provinces, neighbours as ranges.
std::string selection_text(std::span<const int> provinces);

} // namespace editor
