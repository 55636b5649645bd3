#pragma once

#include "map/field_colours.h"
#include "map/map_image.h"

#include <QImage>

#include <memory>

namespace map {

/// A map whose provinces have the colours of a field, for one painting.
class ColouredStrips : public StripReader {
  public:
    /// The images must outlive this.
    ColouredStrips(const MapImage& map, const MapImage& id_map,
                   std::shared_ptr<const FieldColours> colours);

    void read(const QRect& shown, ZoomLevel level, QImage& target) override;
    const std::optional<data::Place>& problem() const override;

  private:
    MapReader map_;
    MapReader id_map_;
    std::shared_ptr<const FieldColours> colours_;
    QImage ids_; // kept from one read to the next
};

} // namespace map
