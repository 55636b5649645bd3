#include "editor/selection.h"

#include "targets.h"

#include <algorithm>

void fuzz::selection(std::string_view bytes) {
    editor::Selection selection;
    const bool taken = accepts([&] { selection.apply(bytes); });
    std::string listed;
    int previous = 0;
    for (const int province : selection.provinces()) {
        assert(province > previous && province <= data::last_province);
        assert(selection.contains(province));
        listed += std::to_string(province) + ";";
        previous = province;
    }
    assert(editor::is_well_formed(listed));

    editor::Selection again;
    again.apply(listed);
    assert(std::ranges::equal(again.provinces(), selection.provinces()));
    if (taken) {
        again.apply(editor::with_province(bytes, 7));
        assert(again.contains(7));
    }
}
