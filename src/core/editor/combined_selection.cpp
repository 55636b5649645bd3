#include "editor/combined_selection.h"

#include "data/province_table.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace editor {

std::vector<int> combined(std::span<const int> selected, std::span<const int> others,
                          Combination combination) {
    std::vector<int> provinces;
    const auto to = std::back_inserter(provinces);
    switch (combination) {
    case Combination::replace:
        provinces.assign(others.begin(), others.end());
        break;
    case Combination::add:
        std::set_union(selected.begin(), selected.end(), others.begin(), others.end(), to);
        break;
    case Combination::remove:
        std::set_difference(selected.begin(), selected.end(), others.begin(), others.end(), to);
        break;
    case Combination::keep:
        std::set_intersection(selected.begin(), selected.end(), others.begin(), others.end(), to);
        break;
    }
    return provinces;
}

std::vector<int> inverted(std::span<const int> selected) {
    std::vector<int> all(data::last_province);
    std::iota(all.begin(), all.end(), 1);
    return combined(all, selected, Combination::remove);
}

std::string selection_text(std::span<const int> provinces) {
    std::string text;
    for (auto first = provinces.begin(); first != provinces.end();) {
        auto end = first + 1;
        while (end != provinces.end() && *end == *(end - 1) + 1)
            ++end;
        const auto count = end - first;
        text.append(text.empty() ? "" : ";").append(std::to_string(*first));
        if (count > 1) // two neighbours are as short as a range
            text.append(count == 2 ? ";" : "-").append(std::to_string(*(end - 1)));
        first = end;
    }
    return text;
}

} // namespace editor
