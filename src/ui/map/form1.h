#pragma once

#include "map/map_image.h"
#include "map/overlay_preview.h"
#include "map/position_entry.h"
#include "map/selection_dots.h"
#include "map/shown_map.h"
#include "shell/session.h"

#include <QPoint>
#include <QPointF>
#include <QWidget>

#include <array>
#include <optional>

class QScrollArea;

namespace map {

class Picture;

/// The map window: shows one of the maps, and turns clicks on it into selections and positions.
class Form1 : public QWidget {
    Q_OBJECT

  public:
    /// Opens the session's maps and shows map 1. Throws what the opening of an image throws. The
    /// session must outlive the window.
    explicit Form1(shell::Session& session, QWidget* parent = nullptr);

    /// Returns the ID map's size.
    QSize sizeHint() const override;

    bool has_map_2() const { return map_2_.has_value(); }

    /// Makes the map the visible one; without a map 2 it cannot be chosen.
    void show_map(ShownMap which);

    /// Redraws the maps from the current data.
    void refresh();

    /// Redraws the maps for another selection or another mode, which both change the dots.
    void selection_or_mode_changed();

  signals:
    /// The pointer moved over the province while no button was held.
    void pointed(int province);
    /// The province was clicked in normal mode: to be added to the selection, or to replace it.
    void province_clicked(int province, bool add);
    /// The preview could not show something.
    void problem(const QString& text);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    /// Scrolling by dragging with the middle button.
    struct Drag {
        QPoint pointer;  // where the button was pressed on the screen
        QPoint scrolled; // where the scroll bars stood then
        bool moved = false;
    };

    /// What the ID map says about a point.
    struct Place {
        QPoint point;
        Colour colour = 0;
        int province = 0;
    };

    void add_picture(ShownMap which, const char* name, const MapImage& image);
    void press(const QMouseEvent& event);
    void move(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void scroll(const QPoint& pointer);
    void scroll_to(const QPoint& corner);
    void click(const QMouseEvent& event);
    void select(int province, ShiftState shift);
    void enter_position(const QMouseEvent& event, int province);
    void update_shown(const QRect& changed);
    void point_at(int province);
    std::optional<Place> place_at(const QPointF& position) const;
    void work_out_dots();
    void report(const ForeignPoint& point);
    void draw_dots(QPainter& painter, const QRect& exposed) const;
    void draw_above(QPainter& painter, const QRect& exposed);

    shell::Session& session_;
    MapImage map_1_;
    std::optional<MapImage> map_2_;
    MapImage id_map_; // every colour is read here, whichever map is shown

    OverlayPreview overlay_;
    SelectionDots dots_;
    bool foreign_point_reported_ = false;

    QScrollArea* scroll_area_;
    QWidget* surfaces_;
    std::array<Picture*, 3> pictures_ = {};

    QPointF pressed_; // pixels
    std::optional<Drag> drag_;
    int pointed_province_ = -1;
};

} // namespace map
