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

/// Reads and draws the rectangle (shown pixels, inside the surface, not empty) at the level. A
/// large one is read in strips, at most so many at once: the uppermost by `first`, each other one
/// by what `open` opens, in a thread of its own where one is to be had; it is always the caller's
/// thread that draws. Returns the first problem of the readers, from the top; `first` keeps those
/// of earlier calls.
std::optional<data::Place> read_strips(const QRect& shown, ZoomLevel level, int at_once,
                                       StripReader& first, const OpenStrip& open,
                                       const DrawPart& draw);

} // namespace map
