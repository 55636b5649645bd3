#pragma once

#include <QScrollArea>

namespace map {

/// Shows the part of the map that fits into the window: scrolled by the wheel, sideways with Shift,
/// and by the keyboard's arrows and pages.
class MapScrollArea : public QScrollArea {
    Q_OBJECT

  public:
    explicit MapScrollArea(QWidget* parent);

    /// Scrolls, as far as the map reaches, until the point of it (pixels) is in the upper left
    /// corner.
    void scroll_to(QPoint corner);

    /// Returns the point of the map (pixels) in the upper left corner.
    QPoint corner() const;

  signals:
    /// Tab, or Shift+Tab when not `forward`, is to move the focus out of the map.
    void tabbed(bool forward);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;
};

} // namespace map
