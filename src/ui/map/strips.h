#pragma once

#include "data/place.h"
#include "map/strip_reader.h"
#include "map/zoom_level.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>

namespace map {

/// Opens what is to be shown for one strip.
using OpenStrip = std::function<std::unique_ptr<StripReader>()>;

/// Draws the upper left corner of the image at the rectangle (shown pixels) that it fills.
using DrawPart = std::function<void(const QRect& shown, const QImage& image)>;

/// Reads and draws the rectangle (shown pixels, inside the surface) at the level. A large one is
/// read in strips, at most so many at once: the uppermost by `first`, each other one by a thread of
/// its own, which calls `open`; it is always the caller's thread that draws. Returns why something
/// could not be read, in the uppermost strip of which that is so.
std::optional<data::Place> read_strips(const QRect& shown, ZoomLevel level, int at_once,
                                       StripReader& first, const OpenStrip& open,
                                       const DrawPart& draw);

} // namespace map
