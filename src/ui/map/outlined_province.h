#pragma once

#include "map/outline.h"
#include "map/zoom_level.h"

#include <QRect>
#include <QRegion>

#include <vector>

class QPainter;

namespace map {

/// The province that the user is to look at: its border, drawn above the map.
class OutlinedProvince {
  public:
    /// Takes the province's border from its box on the ID map.
    OutlinedProvince(int identifier, const Box& box, const ReadRow& read_row);

    int identifier() const { return identifier_; }

    /// Draws what reaches into the region (shown pixels).
    void draw(QPainter& painter, const QRegion& exposed, ZoomLevel level) const;

    /// Returns what drawing it covers, in shown pixels.
    QRect bounds(ZoomLevel level) const;

  private:
    int identifier_;
    Box box_;
    std::vector<BorderLine> lines_;
};

} // namespace map
