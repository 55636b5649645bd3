#include "map/province_places.h"

#include "map/identification.h"

#include <vector>

namespace map {

ProvincePlaces::ProvincePlaces(const MapImage& id_map) : id_map_(id_map), reader_(id_map) {
    std::vector<Pixel> row(static_cast<std::size_t>(size().width()));
    for (int y = 0; y < size().height(); ++y) {
        if (reader_.read_row(y, 0, 1, row))
            index_.add_row(y, row);
    }
}

int ProvincePlaces::province_at(int x, int y) const {
    Pixel pixel = no_pixel;
    if (!QRect({0, 0}, size()).contains(x, y) || !reader_.read_row(y, x, 1, {&pixel, 1}))
        return 0;
    return province_of(pixel & 0xFFFFFF);
}

} // namespace map
