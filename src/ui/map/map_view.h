#pragma once

#include "data/indexed_array.h"
#include "map/picture.h"
#include "map/shown_map.h"
#include "map/strip_reader.h"
#include "map/zoom_level.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QScrollArea>

#include <optional>

namespace map {

/// Shows the part of a map that fits into the window, at a zoom level. It is scrolled by the wheel,
/// sideways with Shift, by the keyboard and by dragging with the middle button; the wheel with Ctrl
/// changes the level. Positions and places are pixels of the map, unless they are said to be shown
/// pixels.
class MapView : public QScrollArea {
    Q_OBJECT

  public:
    explicit MapView(QWidget* parent);

    /// Adds the surface of a map; what is drawn above it has shown pixels for coordinates. The
    /// image must outlive the view.
    void add_picture(ShownMap which, const char* name, const MapImage& image,
                     const Picture::DrawAbove& draw_above);

    /// Makes the map the visible one; one that was not added cannot be chosen.
    void show_map(ShownMap which);

    /// Gives the shown map the keyboard.
    void take_focus() { shown_picture()->setFocus(); }

    /// Shows on all surfaces what that opens, in the place of the maps alone.
    void show_strips(const OpenStrips& open);

    /// Repaints the maps, or a rectangle (shown pixels) of them.
    void repaint_maps();
    void repaint_maps(const QRect& shown);

    /// Takes the sizes of the images, which may have changed, and repaints the maps.
    void take_sizes();

    ZoomLevel level() const { return level_; }

    /// Shows the map at the level. What is in the middle of the view stays there.
    void set_level(ZoomLevel level);

    /// Shows the map at the largest level, at most 1, at which it fits the view as a whole.
    void show_whole_map();

    /// Returns the part of the map that is in the view.
    QRect visible_part() const;

    /// Scrolls, as far as the map reaches, until the pixel is in the middle of the view.
    void centre_on(QPoint pixel);

  signals:
    /// A button was pressed there.
    void pressed(const QPointF& position);
    /// The pointer moved there while no button was held.
    void hovered(const QPointF& position);
    /// A button was released there, and the map was not dragged by it.
    void clicked(const QMouseEvent& event, const QPointF& position);
    /// The map is shown at another level.
    void level_changed(ZoomLevel level);
    /// A part of a map could not be read, and is grey.
    void problem(const data::Place& reason);
    /// Tab, or Shift+Tab when not `forward`, is to move the focus out of the map.
    void tabbed(bool forward);

  protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    /// Scrolling by dragging with the middle button.
    struct Drag {
        QPoint from;     // on the screen: where the map was taken hold of
        QPoint pointer;  // on the screen: where the pointer is
        QPoint scrolled; // where the scroll bars stood when the map was taken hold of
        bool moved = false;
    };

    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void drag_to(const QPoint& pointer);

    void zoom(ZoomLevel level, QPoint fixed);
    void zoom_by_wheel(const QWheelEvent& event);
    void scroll_sideways(const QWheelEvent& event);
    void scroll_to(QPoint corner);
    QPoint corner() const;
    Picture* shown_picture() const;

    QWidget* surfaces_;
    data::IndexedArray<ShownMap, Picture*, 3> pictures_ = {};
    ShownMap shown_ = ShownMap::map_1;
    ZoomLevel level_;
    int wheel_turn_ = 0; // eighths of a degree that were no whole notch so far
    std::optional<Drag> drag_;
};

} // namespace map
