#include "map/picture.h"

#include "map/zoomed_rect.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace map {

namespace {

// A strip is drawn while the processor's cache still holds it.
constexpr int strip_height = 32; // pixels

} // namespace

Picture::Picture(const MapImage& image, DrawAbove draw_above, QWidget* parent)
    : QWidget(parent),
      image_(image),
      draw_above_(std::move(draw_above)),
      open_strips_([](const MapImage& map) { return std::make_unique<MapReader>(map); }) {
    setAttribute(Qt::WA_OpaquePaintEvent); // the image covers it all
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    set_level({});
}

void Picture::set_level(ZoomLevel level) {
    level_ = level;
    setFixedSize(shown_size(level, image_.size()));
    update();
}

void Picture::show_strips(OpenStrips open) {
    open_strips_ = std::move(open);
    update();
}

void Picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const auto strips = open_strips_(image_);
    for (const QRect& exposed : event->region()) {
        painter.setClipRect(exposed);
        for (int top = exposed.top(); top <= exposed.bottom(); top += strip_height) {
            const QRect strip = QRect(exposed.left(), top, exposed.width(), strip_height) & exposed;
            const QSize needed = strip_.size().expandedTo(strip.size());
            if (needed != strip_.size())
                strip_ = QImage(needed, QImage::Format_RGB32);
            strips->read(strip, level_, strip_);
            painter.drawImage(strip.topLeft(), strip_, QRect({0, 0}, strip.size()));
        }
    }
    draw_above_(painter, event->region());
    if (strips->problem())
        emit problem(*strips->problem());
}

} // namespace map
