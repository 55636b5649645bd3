#include "map/province_index.h"

#include "map/identification.h"
#include "map/run_of_pixels.h"

namespace map {

void ProvinceIndex::add_row(int y, std::span<const Pixel> pixels) {
    for (std::size_t begin = 0; begin < pixels.size();) {
        const std::size_t end = end_of_run(pixels, begin);
        if (pixels[begin] != no_pixel)
            add_run(province_of(pixels[begin]), y, static_cast<int>(begin), static_cast<int>(end));
        begin = end;
    }
}

void ProvinceIndex::add_run(int identifier, int y, int first_x, int end_x) {
    ProvincePlace& place = places_[static_cast<std::size_t>(identifier)];
    if (place.pixels == 0)
        place = {{first_x, y, first_x, y}, first_x, y, 0, 0};
    const int length = end_x - first_x;
    place.box = united(place.box, {first_x, y, end_x - 1, y});
    if (length > place.longest_row) {
        place.inner_x = first_x + length / 2;
        place.inner_y = y;
        place.longest_row = length;
    }
    place.pixels += static_cast<std::uint32_t>(length);
}

const ProvincePlace* ProvinceIndex::place(int identifier) const {
    const auto& place = places_.at(static_cast<std::size_t>(identifier));
    return place.pixels > 0 ? &place : nullptr;
}

} // namespace map
