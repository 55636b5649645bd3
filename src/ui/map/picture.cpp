#include "map/picture.h"

#include "map/strips.h"
#include "map/zoomed_rect.h"

#include <QPaintEvent>
#include <QPainter>
#include <QThread>

#include <utility>

namespace map {

Picture::Picture(const MapImage& image, DrawAbove draw_above, QWidget* parent)
    : QWidget(parent),
      image_(image),
      draw_above_(std::move(draw_above)),
      open_strips_([](const MapImage& map) { return std::make_unique<MapReader>(map); }) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    set_level({});
}

void Picture::set_level(ZoomLevel level) {
    level_ = level;
    setFixedSize(shown_size(level, image_.size()));
}

void Picture::show_strips(OpenStrips open) {
    open_strips_ = std::move(open);
}

void Picture::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const auto open = [this] { return open_strips_(image_); };
    const auto first = open();
    const auto draw = [&painter](const QRect& shown, const QImage& image) {
        painter.drawImage(shown.topLeft(), image, QRect({0, 0}, shown.size()));
    };
    std::optional<data::Place> reason;
    for (const QRect& exposed : event->region()) {
        auto problem =
            read_strips(exposed, level_, QThread::idealThreadCount(), *first, open, draw);
        if (!reason)
            reason = std::move(problem);
    }
    draw_above_(painter, event->region());
    if (reason)
        emit problem(*reason);
}

} // namespace map
