#include "map/selection_dots.h"

#include "data/province_table.h"

#include <algorithm>
#include <array>

namespace map {

namespace {

constexpr int points_in(int length) {
    return length <= 0 ? 0 : (length - 1) / dot_spacing + 1;
}

} // namespace

SelectionDots::SelectionDots(int width, int height, const editor::Selection& selection,
                             const ReadGridRow& read_row)
    : columns_(points_in(width)), rows_(points_in(height)) {
    dots_.reserve(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
    std::vector<Pixel> pixels(static_cast<std::size_t>(columns_));
    Pixel last = no_pixel;
    bool selected = false;
    std::array<bool, data::last_province + 1> is_met = {};
    for (int row = 0; row < rows_; ++row) {
        read_row(row * dot_spacing, pixels);
        for (int column = 0; column < columns_; ++column) {
            const Pixel pixel = pixels[static_cast<std::size_t>(column)];
            if (pixel != last) { // most neighbours lie in one province
                last = pixel;
                const int province = pixel == no_pixel ? 0 : province_of(pixel);
                selected = province <= data::last_province && selection.contains(province);
                if (selected)
                    is_met.at(static_cast<std::size_t>(province)) = true;
                if (province > data::last_province && !foreign_point_)
                    foreign_point_ = {column * dot_spacing, row * dot_spacing, pixel & 0xFFFFFF,
                                      province};
            }
            dots_.push_back(selected);
        }
        widen_dotted_part(row);
    }
    for (const int province : selection.provinces()) {
        if (!is_met.at(static_cast<std::size_t>(province)))
            missed_.push_back(province);
    }
}

/// Takes in the dots of the grid's last row so far.
void SelectionDots::widen_dotted_part(int row) {
    const auto begin = dots_.end() - columns_;
    const auto first = std::find(begin, dots_.end(), 1);
    if (first == dots_.end())
        return;
    const auto end = std::find(dots_.rbegin(), dots_.rend(), 1).base();
    const Box part{static_cast<int>(first - begin), row, static_cast<int>(end - begin) - 1, row};
    dotted_part_ = dotted_part_ ? united(*dotted_part_, part) : part;
}

void SelectionDots::add_missed(const ProvinceIndex& index) {
    single_dots_.clear();
    for (const int province : missed_) {
        if (const auto* place = index.place(province))
            single_dots_.push_back({place->inner_x, place->inner_y});
    }
}

bool SelectionDots::has_dot(int column, int row) const {
    return dots_[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                 static_cast<std::size_t>(column)] != 0;
}

} // namespace map
