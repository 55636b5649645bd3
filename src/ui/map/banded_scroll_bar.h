#pragma once

#include <QScrollBar>

namespace map {

/// A scroll bar that costs little to paint however long it is, so that scrolling a map stays light.
class BandedScrollBar : public QScrollBar {
    Q_OBJECT

  public:
    using QScrollBar::QScrollBar;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace map
