#pragma once

#include "map/selection_dots.h"
#include "map/zoom_level.h"

#include <QPoint>
#include <QRect>

class QPainter;

namespace map {

/// Draws the dot of a point (pixels of the map).
void draw_dot(QPainter& painter, QPoint point, ZoomLevel level);

/// Draws the dots that reach into the rectangle (shown pixels). Where dots would lie on top of each
/// other one stands for its neighbours.
void draw_dots(QPainter& painter, const SelectionDots& dots, const QRect& exposed, ZoomLevel level);

/// Returns the shown pixels that the dot of a point (pixels of the map) covers.
QRect dot_rect(QPoint point, ZoomLevel level);

} // namespace map
