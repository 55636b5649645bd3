#include "map/outlined_province.h"

#include <QPainter>

#include <utility>

namespace map {

namespace {

/// Noise has millions of them, a province of a thousand rows a few thousand.
constexpr std::size_t most_lines = 50'000;

/// Half the width of the line and of the rim that sets it off from any map, in shown pixels.
constexpr int line_reach = 1;
constexpr int rim_reach = 2;
constexpr QRgb line_colour = 0xFFFFE000;

/// Returns the shown pixels that a line covers which reaches so far to both sides.
QRect covered(const BorderLine& line, ZoomLevel level, int reach) {
    const QPoint from(level.shown(line.from_x), level.shown(line.from_y));
    const QPoint to(level.shown(line.to_x), level.shown(line.to_y));
    return {from - QPoint(reach, reach), to + QPoint(reach - 1, reach - 1)};
}

} // namespace

OutlinedProvince::OutlinedProvince(int identifier, const Box& box, const ReadRow& read_row)
    : identifier_(identifier),
      box_(box),
      lines_(outline_of(identifier, box, most_lines, read_row)) {}

void OutlinedProvince::draw(QPainter& painter, const QRegion& exposed, ZoomLevel level) const {
    painter.setClipRegion(exposed);
    for (const auto& [reach, colour] :
         {std::pair(rim_reach, QColor(Qt::black)), std::pair(line_reach, QColor(line_colour))}) {
        for (const auto& line : lines_) {
            const QRect rectangle = covered(line, level, reach);
            if (exposed.intersects(rectangle))
                painter.fillRect(rectangle, colour);
        }
    }
}

QRect OutlinedProvince::bounds(ZoomLevel level) const {
    return covered({box_.left, box_.top, box_.right + 1, box_.bottom + 1}, level, rim_reach);
}

} // namespace map
