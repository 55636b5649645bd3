#pragma once

#include "data/place.h"
#include "map/strip_reader.h"
#include "map/zoom_level.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace map {

/// A part of what a surface shows, from its left to its right edge.
struct Strip {
    QRect shown; // shown pixels
    QImage image;
    std::optional<data::Place> problem; // why something of it could not be read, with the file
};

/// Reads the rectangle (shown pixels, inside the surface) at the level, from the top down. A large
/// one is read in several strips at a time, `open` being called for each of them, by a thread of
/// its own but for the first.
std::vector<Strip> read_strips(const QRect& shown, ZoomLevel level,
                               const std::function<std::unique_ptr<StripReader>()>& open);

} // namespace map
