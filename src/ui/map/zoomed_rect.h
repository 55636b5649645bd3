#pragma once

#include "map/zoom_level.h"

#include <QPointF>
#include <QRect>
#include <QSize>

/// What a zoom level does to points, sizes and rectangles.
namespace map {

/// Returns the point of the map that a pointer there (shown pixels) means.
inline QPointF point_on_map(ZoomLevel level, const QPointF& shown) {
    return {level.on_map(shown.x()), level.on_map(shown.y())};
}

/// Returns all pixels of the map of which the rectangle (shown pixels) shows something.
inline QRect rect_on_map(ZoomLevel level, const QRect& shown) {
    const int more = level.step() - 1;
    return {QPoint(level.on_map(shown.left()), level.on_map(shown.top())),
            QPoint(level.on_map(shown.right()) + more, level.on_map(shown.bottom()) + more)};
}

/// Returns the shown pixels that show something of the rectangle (pixels of the map).
inline QRect shown_rect(ZoomLevel level, const QRect& on_map) {
    const int more = level.enlargement() - 1;
    return {QPoint(level.shown(on_map.left()), level.shown(on_map.top())),
            QPoint(level.shown(on_map.right()) + more, level.shown(on_map.bottom()) + more)};
}

/// Returns the shown size of a map (pixels).
inline QSize shown_size(ZoomLevel level, QSize map) {
    return {level.shown_length(map.width()), level.shown_length(map.height())};
}

} // namespace map
