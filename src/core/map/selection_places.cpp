#include "map/selection_places.h"

#include "map/identification.h"

#include <algorithm>
#include <vector>

namespace map {

namespace {

/// Rows that are this many steps apart are read first: most provinces are larger.
constexpr int first_look = 16;

bool has_selected(std::span<const Pixel> pixels, const editor::Selection& selection) {
    Pixel last = no_pixel;
    return std::any_of(pixels.begin(), pixels.end(), [&](Pixel pixel) {
        if (pixel == last) // most neighbours lie in one province
            return false;
        last = pixel;
        const int province = pixel == no_pixel ? 0 : province_of(pixel);
        return province <= data::last_province && selection.contains(province);
    });
}

/// Returns whether the box has a pixel of a selected province, in one of `step` rows and columns.
bool finds_selected(const Box& box, const editor::Selection& selection, int step,
                    const ReadRow& read_row) {
    std::vector<Pixel> pixels(static_cast<std::size_t>((box.right - box.left) / step + 1));
    const int first_row = (box.top + step - 1) / step;
    const int last_row = box.bottom / step;
    const auto row_has_selected = [&](int row) {
        read_row(row * step, box.left, step, pixels);
        return has_selected(pixels, selection);
    };
    for (int row = first_row; row <= last_row; row += first_look) {
        if (row_has_selected(row))
            return true;
    }
    for (int row = first_row; row <= last_row; ++row) {
        if ((row - first_row) % first_look != 0 && row_has_selected(row))
            return true;
    }
    return false;
}

} // namespace

std::optional<Box> box_of(const ProvinceIndex& index, const editor::Selection& selection) {
    std::optional<Box> box;
    for (const int province : selection.provinces()) {
        if (const auto* place = index.place(province))
            box = box ? united(*box, place->box) : place->box;
    }
    return box;
}

const ProvincePlace* first_place(const ProvinceIndex& index, const editor::Selection& selection) {
    for (const int province : selection.provinces()) {
        if (const auto* place = index.place(province))
            return place;
    }
    return nullptr;
}

bool is_in_view(const ProvinceIndex& index, const editor::Selection& selection, const Box& view,
                int step, const ReadRow& read_row) {
    std::optional<Box> doubtful; // where pixels of the selection may lie in the view
    for (const int province : selection.provinces()) {
        const auto* place = index.place(province);
        const auto inside = place ? common(place->box, view) : std::nullopt;
        if (!inside)
            continue;
        if (contains(view, place->inner_x, place->inner_y))
            return true;
        doubtful = doubtful ? united(*doubtful, *inside) : *inside;
    }
    return doubtful && finds_selected(*doubtful, selection, step, read_row);
}

} // namespace map
