#pragma once

#include "map/field_colours.h"
#include "map/map_image.h"
#include "map/outlined_province.h"
#include "map/overlay_preview.h"
#include "map/position_entry.h"
#include "map/province_places.h"
#include "map/selection_dots.h"
#include "map/shown_map.h"
#include "shell/session.h"

#include <QPoint>
#include <QPointF>
#include <QSet>
#include <QWidget>

#include <memory>
#include <optional>
#include <string>

namespace map {

class MapView;

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
    const MapImage& id_map() const { return id_map_; }

    /// Returns what scrolls and zooms the maps.
    MapView& view() const { return *view_; }

    /// Makes the map the visible one; without a map 2 it cannot be chosen.
    void show_map(ShownMap which);

    /// Redraws the maps from the current data.
    void clear_graphique();

    /// Redraws the maps for another selection or another mode, which both change the dots.
    void selection_or_mode_changed();

    /// Colours the maps from now on; not at all without colours.
    void colour(std::shared_ptr<const FieldColours> colours);

    /// Shows anew what other programs have changed of the files of the maps and the graphics.
    void follow_files();

    /// Redraws the maps for other graphics, or another choice among them.
    void graphics_changed();

    /// Returns where the provinces lie on the ID map.
    ProvincePlaces& places() { return places_; }

    /// Moves the view to the selection when no pixel of it is in view.
    void follow_selection();

    /// Moves the view to the selection, and out until it fits. Returns whether any selected
    /// province has a pixel.
    bool montrer();

    /// In a position mode: outlines the next province that lacks the position, behind the one that
    /// was shown last, and moves the view to it. Returns its identifier; nothing when none lacks
    /// it.
    std::optional<int> suivante();

  signals:
    /// The pointer moved over the province while no button was held; where, in pixels of the map.
    void pointed(int province, const QPointF& position);
    /// The identifier was clicked in normal mode: to be added to the selection, or to replace it.
    /// `place` is the point and its colour, as the place of an error for one above 2018.
    void province_clicked(int identifier, bool add, const data::Phrase& place);
    /// Why a map or a graphic cannot be shown; once until mode, maps or graphics change.
    void problem(const QString& text);
    /// Tab, or Shift+Tab when not `forward`, is to move the focus out of the map.
    void tabbed(bool forward);

  private:
    /// What the ID map says about a point.
    struct IdMapPoint {
        QPoint point;
        Colour colour = 0;
        int identifier = 0;

        data::Phrase as_place() const { return place_on_id_map(point.x(), point.y(), colour); }
    };

    void hover(const QPointF& position);
    void click(const QMouseEvent& event, const QPointF& position);
    void select(const IdMapPoint& clicked, ShiftState shift);
    void enter_position(const QMouseEvent& event, int province);
    std::optional<IdMapPoint> id_map_point(const QPointF& position);
    QRect shown_graphics(int province) const;
    /// Returns the index of the places, after reading what it lacks.
    const ProvinceIndex& index() { return places_.index(); }
    bool follow_file(MapImage& image);
    void work_out_dots();
    void show_foreign_point(const ForeignPoint& point);
    void add_missed_dots();
    void forget_places();
    void draw_above(QPainter& painter, const QRegion& exposed);
    void tell(const QString& reason);
    void tell_place(const std::optional<data::Place>& place);

    void bring_into_view(const QRect& part);
    void outline(std::optional<OutlinedProvince> province);
    void drop_needless_outline();

    shell::Session& session_;
    MapImage map_1_;
    std::optional<MapImage> map_2_;
    MapImage id_map_; // every colour is read here, whichever map is shown

    OverlayPreview overlay_;
    SelectionDots dots_;
    bool foreign_point_reported_ = false;
    ProvincePlaces places_;
    std::optional<OutlinedProvince> outlined_;
    Mode outlined_in_ = Mode::normal;
    int shown_last_ = 0; // by suivante

    MapView* view_;
    QSet<QString> told_; // reasons, since mode, maps or graphics changed

    QPointF pressed_; // pixels of the map
    int pointed_province_ = -1;
};

} // namespace map
