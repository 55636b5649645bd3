#include "map/map_scroll_area.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QWheelEvent>

namespace map {

namespace {

constexpr int scroll_step = 40; // pixels for an arrow key; a wheel's notch is three

} // namespace

MapScrollArea::MapScrollArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the surface has it
    horizontalScrollBar()->setSingleStep(scroll_step);
    verticalScrollBar()->setSingleStep(scroll_step);
}

void MapScrollArea::scroll_to(QPoint corner) {
    horizontalScrollBar()->setValue(corner.x());
    verticalScrollBar()->setValue(corner.y());
}

QPoint MapScrollArea::corner() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void MapScrollArea::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ShiftModifier) {
        QScrollArea::wheelEvent(event);
        return;
    }
    // The bar would take Shift for a wish to turn pages.
    QWheelEvent sideways(event->position(), event->globalPosition(),
                         event->pixelDelta().transposed(), event->angleDelta().transposed(),
                         event->buttons(), Qt::NoModifier, event->phase(), event->inverted(),
                         event->source(), event->pointingDevice());
    QCoreApplication::sendEvent(horizontalScrollBar(), &sideways);
    event->accept();
}

bool MapScrollArea::focusNextPrevChild(bool next) {
    // Qt would scroll to the surface's corner, and keep the focus within the map window.
    emit tabbed(next);
    return true;
}

} // namespace map
