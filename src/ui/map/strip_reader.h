#pragma once

#include "data/place.h"
#include "map/bitmap_file.h"
#include "map/zoom_level.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace map {

class MapImage;

/// Reads what a surface shows, for one painting.
class StripReader {
  public:
    StripReader() = default;
    StripReader(const StripReader&) = delete;
    StripReader& operator=(const StripReader&) = delete;
    virtual ~StripReader() = default;

    /// Fills the upper left corner of `target`, a 32-bit RGB image of the rectangle's size or
    /// larger, with the rectangle (shown pixels, inside the surface) of what is shown at the level.
    virtual void read(const QRect& shown, ZoomLevel level, QImage& target) = 0;

    /// Returns why something could not be read, with the file; nothing while all could.
    virtual const std::optional<data::Place>& problem() const = 0;
};

/// Returns the row's first pixels of a 32-bit RGB image.
inline std::span<Pixel> row_of(QImage& image, int row, int width) {
    return {reinterpret_cast<Pixel*>(image.scanLine(row)), static_cast<std::size_t>(width)};
}

/// Opens what is to be shown of the map for one painting; never null. Several threads call it at
/// once.
using OpenStrips = std::function<std::unique_ptr<StripReader>(const MapImage& map)>;

} // namespace map
