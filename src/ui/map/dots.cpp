#include "map/dots.h"

#include "map/zoomed_rect.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace map {

namespace {

constexpr int dot_size = 10;      // pixels of the map
constexpr int smallest_size = 4;  // shown pixels
constexpr int least_spacing = 10; // shown pixels

int shown_dot_size(ZoomLevel level) {
    return std::max(level.shown_length(dot_size), smallest_size);
}

QImage draw_image(int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, size, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(size, size) / 2);
    return image;
}

const QImage& dot_image(ZoomLevel level) {
    constexpr int levels = ZoomLevel::largest - ZoomLevel::smallest + 1;
    static const auto images = [] {
        std::array<QImage, levels> made;
        for (int i = 0; i < levels; ++i) {
            const ZoomLevel made_for(ZoomLevel::smallest + i);
            made.at(static_cast<std::size_t>(i)) = draw_image(shown_dot_size(made_for));
        }
        return made;
    }();
    return images.at(static_cast<std::size_t>(level.power() - ZoomLevel::smallest));
}

/// Returns how many points of the grid, in both directions, share a dot.
int points_of_a_dot(ZoomLevel level) {
    return std::max(1, least_spacing * level.step() / dot_spacing);
}

/// Returns the first point with a dot among those that share one.
std::optional<QPoint> first_dot(const SelectionDots& dots, const QRect& points) {
    for (int row = points.top(); row <= points.bottom(); ++row) {
        for (int column = points.left(); column <= points.right(); ++column) {
            if (dots.has_dot(column, row))
                return QPoint(column, row) * dot_spacing;
        }
    }
    return {};
}

/// Returns the numbers of the dots of which something may be in the rectangle (shown pixels); one
/// stands for some points of the grid in each direction.
QRect dots_around(const QRect& exposed, int points, ZoomLevel level) {
    const int size = shown_dot_size(level);
    const QRect around = rect_on_map(level, exposed.adjusted(-size, -size, size, size));
    const int spacing = points * dot_spacing;
    return {QPoint(std::max(around.left(), 0) / spacing, std::max(around.top(), 0) / spacing),
            QPoint(around.right() / spacing, around.bottom() / spacing)};
}

/// Draws the dots of the part of the grid that has any: a large view has many more points.
void draw_dots_of_grid(QPainter& painter, const SelectionDots& dots, const Box& part,
                       const QRect& exposed, ZoomLevel level) {
    const QRect grid(QPoint(part.left, part.top), QPoint(part.right, part.bottom));
    const int points = points_of_a_dot(level);
    const QRect shown = dots_around(exposed, points, level) &
                        QRect(QPoint(part.left / points, part.top / points),
                              QPoint(part.right / points, part.bottom / points));
    for (int row = shown.top(); row <= shown.bottom(); ++row) {
        for (int column = shown.left(); column <= shown.right(); ++column) {
            const QRect shared(column * points, row * points, points, points);
            if (const auto point = first_dot(dots, shared & grid))
                draw_dot(painter, *point, level);
        }
    }
}

} // namespace

QRect dot_rect(QPoint point, ZoomLevel level) {
    const int size = shown_dot_size(level);
    return {level.shown(point.x()) - size / 2, level.shown(point.y()) - size / 2, size, size};
}

void draw_dot(QPainter& painter, QPoint point, ZoomLevel level) {
    painter.drawImage(dot_rect(point, level).topLeft(), dot_image(level));
}

void draw_dots(QPainter& painter, const SelectionDots& dots, const QRect& exposed,
               ZoomLevel level) {
    if (const auto& part = dots.dotted_part())
        draw_dots_of_grid(painter, dots, *part, exposed, level);
    for (const Point& single : dots.single_dots()) {
        const QPoint point(single.x, single.y);
        if (dot_rect(point, level).intersects(exposed))
            draw_dot(painter, point, level);
    }
}

} // namespace map
