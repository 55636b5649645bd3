#include "map/banded_scroll_bar.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace map {

namespace {

// Qt hands what is drawn over 96 rows or more out to threads, one line at a time: for a bar as high
// as a window, waking them takes longer than painting the map beside it.
constexpr int band_height = 64; // pixels

} // namespace

void BandedScrollBar::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    QPainter painter(this);
    for (int top = 0; top < height(); top += band_height) {
        painter.setClipRect(0, top, width(), band_height);
        style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, this);
    }
}

} // namespace map
