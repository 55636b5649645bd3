#include "map/banded_style.h"

#include <QPainter>
#include <QPixmap>
#include <QStyleOption>

#include <algorithm>

namespace map {

namespace {

// Qt hands what it draws in 96 pieces or more out to threads, one line at a time: for a bar as long
// as a window, waking them takes longer than painting the map beside it. Every row of a line is a
// piece, at a scale of one every pixel: the two long edges of an outline of 40 pixels are 80, and
// the rest is for its ends.
constexpr int most_pixels = 40; // of the screen

/// Returns the size of the parts of a bar that are drawn alone.
QSize size_of_band(QSize bar, qreal scale) {
    const int whole_pixels = static_cast<int>(most_pixels / scale) & ~3; // whole ones of the screen
    const int length = std::max(whole_pixels, 4);
    return bar.boundedTo({scale == 1 ? length : bar.width(), length});
}

} // namespace

void BandedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const QRect bar = option->rect;
    const qreal scale = painter->device()->devicePixelRatioF();
    const QSize size = size_of_band(bar.size(), scale);
    QPixmap band(size * scale);
    band.setDevicePixelRatio(scale);
    for (int top = bar.top(); top <= bar.bottom(); top += size.height()) {
        for (int left = bar.left(); left <= bar.right(); left += size.width()) {
            band.fill(Qt::transparent);
            QPainter band_painter(&band);
            band_painter.translate(-left, -top);
            QProxyStyle::drawComplexControl(control, option, &band_painter, widget);
            painter->drawPixmap(left, top, band);
        }
    }
}

} // namespace map
