#pragma once

#include <QProxyStyle>

namespace map {

/// Draws a scroll bar as the program's style does, at little cost however long it is, so that
/// scrolling a map stays light.
class BandedStyle : public QProxyStyle {
    Q_OBJECT

  public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace map
