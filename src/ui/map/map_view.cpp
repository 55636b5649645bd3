#include "map/map_view.h"

#include "map/banded_style.h"
#include "map/zoomed_rect.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <utility>

namespace map {

namespace {

constexpr int scroll_step = 40; // pixels for an arrow key; a wheel's notch is three
constexpr int notch = QWheelEvent::DefaultDeltasPerStep;

} // namespace

MapView::MapView(QWidget* parent) : QScrollArea(parent), surfaces_(new QWidget) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // the surface has it
    horizontalScrollBar()->setSingleStep(scroll_step);
    verticalScrollBar()->setSingleStep(scroll_step);
    auto* style = new BandedStyle;
    style->setParent(this);
    for (QScrollBar* bar : {verticalScrollBar(), horizontalScrollBar()})
        bar->setStyle(style);
    // The visible surface covers it. Only this one is said to be opaque, and only this one is
    // updated: Qt paints each opaque widget that is to be painted alone, so that what scrolling
    // uncovers would be painted twice.
    surfaces_->setAttribute(Qt::WA_OpaquePaintEvent);
    setWidget(surfaces_);
}

void MapView::add_picture(ShownMap which, const char* name, const MapImage& image,
                          const Picture::DrawAbove& draw_above) {
    auto* picture = new Picture(image, draw_above, surfaces_);
    picture->setObjectName(QString::fromLatin1(name));
    picture->hide();
    connect(picture, &Picture::pressed, this, &MapView::press);
    connect(picture, &Picture::moved, this, &MapView::move);
    connect(picture, &Picture::released, this, &MapView::release);
    connect(picture, &Picture::problem, this, &MapView::problem);
    pictures_[which] = picture;
}

void MapView::show_map(ShownMap which) {
    if (pictures_[which] == nullptr)
        return;
    shown_ = which;
    Picture* shown = shown_picture();
    // A surface that is hidden with the focus on it would leave the scrolling to Qt.
    const bool has_focus = surfaces_->isAncestorOf(QApplication::focusWidget());
    shown->show();
    if (has_focus)
        shown->setFocus();
    for (Picture* picture : pictures_) {
        if (picture != nullptr)
            picture->setVisible(picture == shown);
    }
    surfaces_->resize(shown->size());
}

void MapView::show_strips(const OpenStrips& open) {
    for (Picture* picture : pictures_) {
        if (picture != nullptr)
            picture->show_strips(open);
    }
    repaint_maps();
}

void MapView::repaint_maps() {
    surfaces_->update();
}

void MapView::repaint_maps(const QRect& shown) {
    surfaces_->update(shown);
}

void MapView::take_sizes() {
    for (Picture* picture : pictures_) {
        if (picture != nullptr)
            picture->set_level(level_);
    }
    surfaces_->resize(shown_picture()->size());
    repaint_maps();
}

Picture* MapView::shown_picture() const {
    return pictures_[shown_];
}

// --- the pointer

void MapView::press(const QMouseEvent& event) {
    if (event.button() == Qt::MiddleButton) {
        const QPoint pointer = event.globalPosition().toPoint();
        drag_ = Drag{pointer, pointer, corner()};
    }
    emit pressed(point_on_map(level_, event.position()));
}

void MapView::move(const QMouseEvent& event) {
    if (drag_ && event.buttons().testFlag(Qt::MiddleButton))
        drag_to(event.globalPosition().toPoint());
    if (event.buttons() == Qt::NoButton)
        emit hovered(point_on_map(level_, event.position()));
}

void MapView::release(const QMouseEvent& event) {
    if (event.button() == Qt::MiddleButton) {
        const auto drag = std::exchange(drag_, std::nullopt);
        if (drag && drag->moved)
            return;
    }
    emit clicked(event, point_on_map(level_, event.position()));
}

void MapView::drag_to(const QPoint& pointer) {
    drag_->pointer = pointer;
    const QPoint way = pointer - drag_->from;
    drag_->moved = drag_->moved || way.manhattanLength() >= QApplication::startDragDistance();
    if (drag_->moved)
        scroll_to(drag_->scrolled - way);
}

// --- the level

void MapView::set_level(ZoomLevel level) {
    const QRect surface(-corner(), surfaces_->size()); // a small map leaves some of the view empty
    zoom(level, (viewport()->rect() & surface).center());
}

void MapView::show_whole_map() {
    const QSize view = maximumViewportSize();
    const QSize map = shown_picture()->image_size();
    ZoomLevel level;
    while (!level.is_smallest() && shown_size(level, map).expandedTo(view) != view)
        level = ZoomLevel(level.power() - 1);
    set_level(level);
}

/// Changes the level around a point of the viewport: what is shown there stays there.
void MapView::zoom(ZoomLevel level, QPoint fixed) {
    if (level == level_)
        return;
    const QPoint point = corner() + fixed;
    const ZoomLevel before = std::exchange(level_, level);
    take_sizes();
    scroll_to(QPoint(level.from(before, point.x()), level.from(before, point.y())) - fixed);
    if (drag_) { // the map is taken hold of anew
        drag_->from = drag_->pointer;
        drag_->scrolled = corner();
    }
    emit level_changed(level);
}

void MapView::zoom_by_wheel(const QWheelEvent& event) {
    const int turn = event.angleDelta().y();
    if ((turn > 0) != (wheel_turn_ > 0))
        wheel_turn_ = 0;
    wheel_turn_ += turn;
    const int notches = wheel_turn_ / notch;
    wheel_turn_ %= notch;
    zoom(ZoomLevel(level_.power() + notches), event.position().toPoint());
}

// --- the part in the view

QRect MapView::visible_part() const {
    const QRect shown(corner(), viewport()->size());
    return rect_on_map(level_, shown) & QRect({0, 0}, shown_picture()->image_size());
}

void MapView::centre_on(QPoint pixel) {
    const QRect shown = shown_rect(level_, {pixel, QSize(1, 1)});
    scroll_to(shown.center() - viewport()->rect().center());
}

void MapView::scroll_to(QPoint corner) {
    horizontalScrollBar()->setValue(corner.x());
    verticalScrollBar()->setValue(corner.y());
}

QPoint MapView::corner() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void MapView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() == Qt::ControlModifier) {
        zoom_by_wheel(*event);
        event->accept();
    } else if (event->modifiers() == Qt::ShiftModifier) {
        scroll_sideways(*event);
        event->accept();
    } else {
        QScrollArea::wheelEvent(event);
    }
}

void MapView::scroll_sideways(const QWheelEvent& event) {
    // The bar would take Shift for a wish to turn pages.
    QWheelEvent sideways(event.position(), event.globalPosition(), event.pixelDelta().transposed(),
                         event.angleDelta().transposed(), event.buttons(), Qt::NoModifier,
                         event.phase(), event.inverted(), event.source(), event.pointingDevice());
    QCoreApplication::sendEvent(horizontalScrollBar(), &sideways);
}

void MapView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Home)
        scroll_to({0, 0});
    else if (event->key() == Qt::Key_End)
        scroll_to({surfaces_->width(), surfaces_->height()});
    else
        QScrollArea::keyPressEvent(event);
}

bool MapView::focusNextPrevChild(bool next) {
    // Qt would scroll to the surface's corner, and keep the focus within the map window.
    emit tabbed(next);
    return true;
}

} // namespace map
