#include "map/coloured_strips.h"

#include <utility>

namespace map {

ColouredStrips::ColouredStrips(const MapImage& map, const MapImage& id_map,
                               std::shared_ptr<const FieldColours> colours)
    : map_(map), id_map_(id_map), colours_(std::move(colours)) {}

void ColouredStrips::read(const QRect& shown, ZoomLevel level, QImage& target) {
    if (ids_.width() < shown.width() || ids_.height() < shown.height())
        ids_ = QImage(shown.size(), QImage::Format_RGB32);
    map_.read(shown, level, target);
    id_map_.read_samples(shown, level, ids_);
    for (int row = 0; row < shown.height(); ++row)
        colours_->tint(row_of(ids_, row, shown.width()), row_of(target, row, shown.width()));
}

const std::optional<data::Place>& ColouredStrips::problem() const {
    return map_.problem() ? map_.problem() : id_map_.problem();
}

} // namespace map
