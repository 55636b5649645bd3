#include "map/picture.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace map {

Picture::Picture(const MapImage& image, DrawAbove draw_above, QWidget* parent)
    : QWidget(parent), image_(image), draw_above_(std::move(draw_above)) {
    setFixedSize(image.size());
    setAttribute(Qt::WA_OpaquePaintEvent); // the image covers it all
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

void Picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    MapReader reader(image_);
    for (const QRect& exposed : event->region()) {
        const QSize needed = view_.size().expandedTo(exposed.size());
        if (needed != view_.size())
            view_ = QImage(needed, QImage::Format_RGB32);
        reader.read(exposed, view_);
        painter.setClipRect(exposed);
        painter.drawImage(exposed.topLeft(), view_, QRect({0, 0}, exposed.size()));
        draw_above_(painter, exposed);
    }
}

} // namespace map
