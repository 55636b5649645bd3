#include "map/banded_style.h"

#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

namespace map {

namespace {

// Qt hands what is drawn over 96 rows or more out to threads, one line at a time: for a bar as high
// as a window, waking them takes longer than painting the map beside it.
constexpr int most_rows = 95; // pixels of the screen

} // namespace

void BandedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const QRect bar = option->rect;
    const qreal scale = painter->device()->devicePixelRatioF();
    const int band_height = static_cast<int>(most_rows / scale) & ~3; // whole pixels of the screen
    QPixmap band(QSize(bar.width(), band_height) * scale);
    band.setDevicePixelRatio(scale);
    for (int top = bar.top(); top <= bar.bottom(); top += band_height) {
        band.fill(Qt::transparent);
        QPainter band_painter(&band);
        band_painter.translate(-bar.left(), -top);
        QProxyStyle::drawComplexControl(control, option, &band_painter, widget);
        painter->drawPixmap(bar.left(), top, band);
    }
}

} // namespace map
