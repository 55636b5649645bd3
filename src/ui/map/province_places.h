#pragma once

#include "map/map_image.h"
#include "map/province_index.h"

#include <QSize>

namespace map {

/// Where the provinces lie on an ID map, from one pass over all its rows.
class ProvincePlaces {
  public:
    /// Reads the whole map; rows that cannot be read have no provinces. The map must outlive this.
    explicit ProvincePlaces(const MapImage& id_map);

    const ProvinceIndex& index() const { return index_; }
    QSize size() const { return id_map_.size(); }

    /// Returns the identifier at the point (pixels); 0 outside the map and where it cannot be read.
    int province_at(int x, int y) const;

    /// Returns why something of the map could not be read, with the file; nothing while all
    /// could.
    const std::optional<data::Place>& problem() const { return reader_.problem(); }

  private:
    const MapImage& id_map_;
    mutable MapReader reader_; // one look at the file for all points
    ProvinceIndex index_;
};

} // namespace map
