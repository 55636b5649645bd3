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

/// A part of what a surface shows.
struct ShownPart {
    QImage image;
    std::optional<data::Place> problem; // of the uppermost strip that could not be read whole
};

/// Reads the rectangle (shown pixels, inside the surface) at the level. A large one is read in
/// strips, at most so many at once: the uppermost by `first`, each other one by a thread of its
/// own, which calls `open`.
ShownPart read_strips(const QRect& shown, ZoomLevel level, int at_once, StripReader& first,
                      const std::function<std::unique_ptr<StripReader>()>& open);

} // namespace map
