#include "map/overlay_preview.h"

#include "data/province_table.h"
#include "map/stored_positions.h"

#include <QPainter>

#include <cmath>

namespace map {

namespace {

constexpr int marker_radius = 6; // pixels, the outline's width included

QPoint pixel(const StoredPosition& position) {
    return {static_cast<int>(std::floor(position.x)), static_cast<int>(std::floor(position.y))};
}

QRect marker(QPoint centre) {
    return QRect(centre.x() - marker_radius, centre.y() - marker_radius, 2 * marker_radius + 1,
                 2 * marker_radius + 1);
}

void draw_marker(QPainter& painter, QPoint centre, QColor colour) {
    constexpr int arm = marker_radius - 2;
    for (const auto& pen : {QPen(Qt::white, 4), QPen(colour, 2)}) {
        painter.setPen(pen);
        painter.drawLine(centre - QPoint(arm, 0), centre + QPoint(arm, 0));
        painter.drawLine(centre - QPoint(0, arm), centre + QPoint(0, arm));
    }
}

} // namespace

void OverlayPreview::paint(QPainter& painter, const QRect& exposed, int pointed_province) {
    const QRect reach = marker(exposed.topLeft()).united(marker(exposed.bottomRight()));
    const Area area{static_cast<double>(reach.left()), static_cast<double>(reach.top()),
                    static_cast<double>(reach.right() + 1),
                    static_cast<double>(reach.bottom() + 1)};
    for (const auto& position :
         positions_in(session_.provinces, session_.mode, session_.maps, area))
        draw_marker(painter, pixel(position),
                    position.province == pointed_province ? Qt::red : Qt::black);
}

QRect OverlayPreview::bounds(int province) const {
    QRect covered;
    if (province < 1 || province > data::last_province)
        return covered;
    for (const auto& position :
         positions_of(session_.provinces, session_.mode, session_.maps, province))
        covered |= marker(pixel(position));
    return covered;
}

} // namespace map
