#include "map/form1.h"

#include "base/messages.h"
#include "base/shown_text.h"
#include "data/numbers.h"
#include "map/coloured_strips.h"
#include "map/dots.h"
#include "map/map_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace map {

namespace {

std::optional<MapImage> open_optional(const std::string& path) {
    if (path.empty())
        return {};
    return MapImage(path);
}

ShiftState shift_state(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shift_key : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ctrl_key : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? alt_key : 0);
}

Button button_of(Qt::MouseButton button) {
    if (button == Qt::LeftButton)
        return Button::left;
    return button == Qt::RightButton ? Button::right : Button::other;
}

} // namespace

Form1::Form1(shell::Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      map_1_(session.maps.map_1_path),
      map_2_(open_optional(session.maps.map_2_path)),
      id_map_(session.maps.id_map_path),
      overlay_(session),
      places_(id_map_),
      view_(new MapView(this)) {
    setObjectName(QStringLiteral("Form1"));
    const auto add_picture = [this](ShownMap which, const char* name, const MapImage& image) {
        view_->add_picture(which, name, image, [this](QPainter& painter, const QRegion& exposed) {
            draw_above(painter, exposed);
        });
    };
    add_picture(ShownMap::map_1, "Picture1", map_1_);
    if (map_2_)
        add_picture(ShownMap::map_2, "Picture2", *map_2_);
    add_picture(ShownMap::id_map, "Picture_id", id_map_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);

    connect(view_, &MapView::pressed, this, [this](const QPointF& at) { pressed_ = at; });
    connect(view_, &MapView::hovered, this, &Form1::hover);
    connect(view_, &MapView::clicked, this, &Form1::click);
    connect(view_, &MapView::tabbed, this, &Form1::tabbed);
    connect(view_, &MapView::problem, this, &Form1::tell_place);
    connect(&overlay_, &OverlayPreview::problem, this, &Form1::tell);
    connect(&places_, &ProvincePlaces::completed, this, &Form1::add_missed_dots);
    session_.port_placement.stage = 0;
    show_map(ShownMap::map_1);
    places_.read_while_idle();
}

QSize Form1::sizeHint() const {
    return id_map_.size();
}

void Form1::show_map(ShownMap which) {
    view_->show_map(which);
    told_.clear();
    work_out_dots();
}

void Form1::clear_graphique() {
    drop_needless_outline();
    view_->repaint_maps();
}

void Form1::selection_or_mode_changed() {
    told_.clear();
    work_out_dots();
    clear_graphique();
}

void Form1::colour(std::shared_ptr<const FieldColours> colours) {
    view_->show_strips([this, colours](const MapImage& map) -> std::unique_ptr<StripReader> {
        if (colours)
            return std::make_unique<ColouredStrips>(map, id_map_, colours);
        return std::make_unique<MapReader>(map);
    });
}

void Form1::graphics_changed() {
    told_.clear();
    clear_graphique();
}

void Form1::follow_files() {
    told_.clear();
    bool changed = false;
    const auto follow = [&](MapImage& image) { changed = follow_file(image) || changed; };
    follow(map_1_);
    if (map_2_)
        follow(*map_2_);
    // What could not be read may be there again, in a file that is as it was.
    if (follow_file(id_map_) || places_.problem()) {
        changed = true;
        forget_places();
    }
    if (changed) {
        view_->take_sizes();
        work_out_dots();
    } else if (session_.mode != Mode::normal) {
        clear_graphique(); // it looks after the files of the graphics
    }
}

/// Returns whether the map's file was changed; one that cannot be read now stays as far as it can.
bool Form1::follow_file(MapImage& image) {
    try {
        return image.follow_file();
    } catch (const data::RunTimeError& error) {
        const auto& language = session_.language;
        tell(
            base::message_text(language.text(error.words()) + ": " + language.text(error.place())));
        return true;
    }
}

void Form1::tell(const QString& reason) {
    if (told_.contains(reason))
        return;
    told_.insert(reason);
    emit problem(reason);
}

void Form1::tell_place(const std::optional<data::Place>& place) {
    if (place)
        tell(base::message_text(session_.language.text(*place)));
}

// --- the pointer

void Form1::hover(const QPointF& position) {
    const auto pointed_at = id_map_point(position);
    if (!pointed_at)
        return;
    const int province = pointed_at->identifier;
    const int before = std::exchange(pointed_province_, province);
    if (before != province && session_.mode != Mode::normal) {
        view_->repaint_maps(shown_graphics(before));
        view_->repaint_maps(shown_graphics(province));
    }
    emit pointed(province, position);
}

void Form1::click(const QMouseEvent& event, const QPointF& position) {
    const auto clicked = id_map_point(position);
    if (!clicked)
        return;
    if (session_.mode == Mode::normal) {
        select(*clicked, shift_state(event.modifiers()));
        return;
    }
    try {
        enter_position(event, clicked->identifier);
    } catch (const data::RunTimeError& error) {
        if (error.number() != data::ErrorNumber::subscript_out_of_range)
            throw;
        base::show_error(session_, this, error.within(clicked->as_place()));
    }
}

void Form1::select(const IdMapPoint& clicked, ShiftState shift) {
    if (shift == 0 || shift == ctrl_key)
        emit province_clicked(clicked.identifier, shift == ctrl_key, clicked.as_place());
}

void Form1::enter_position(const QMouseEvent& event, int province) {
    const Click click{button_of(event.button()), shift_state(event.modifiers()), pressed_.x(),
                      data::to_int16(pressed_.y(), data::Text::place_press_y), province};
    const PortPlacement& port = session_.port_placement;
    const bool sea_was_awaited = port.stage == 1;
    const QRect before = shown_graphics(province);
    map::enter_position(session_.mode, click, session_.maps, session_.port_placement,
                        session_.provinces);
    if (port.stage == 1 && !sea_was_awaited) { // only the port has moved, which waits for its sea
        view_->repaint_maps(before);
        view_->repaint_maps(shown_graphics(province));
        drop_needless_outline();
    } else {
        clear_graphique();
    }
}

QRect Form1::shown_graphics(int province) const {
    return overlay_.bounds(province, view_->level());
}

std::optional<Form1::IdMapPoint> Form1::id_map_point(const QPointF& position) {
    const QPoint point(static_cast<int>(std::floor(position.x())),
                       static_cast<int>(std::floor(position.y())));
    MapReader reader(id_map_);
    const auto colour = reader.colour_at(point);
    tell_place(reader.problem());
    if (!colour)
        return {};
    return IdMapPoint{point, *colour, province_of(*colour)};
}

// --- the selection dots

void Form1::work_out_dots() {
    if (session_.mode != Mode::normal) {
        dots_ = {};
        return;
    }
    MapReader reader(id_map_);
    dots_ = SelectionDots(
        map_1_.size().width(), map_1_.size().height(), session_.selection,
        [&reader](int y, std::span<Pixel> pixels) { reader.read_row(y, 0, dot_spacing, pixels); });
    if (const auto* index = places_.complete_index())
        dots_.add_missed(*index);
    tell_place(reader.problem());
    if (dots_.foreign_point() && !std::exchange(foreign_point_reported_, true))
        // What was begun, be it the opening of the maps or a new selection, is finished first.
        QMetaObject::invokeMethod(
            this, [this, point = *dots_.foreign_point()] { show_foreign_point(point); },
            Qt::QueuedConnection);
}

void Form1::show_foreign_point(const ForeignPoint& point) {
    base::show_error(
        session_, this,
        no_such_province(point.identifier).within(place_on_id_map(point.x, point.y, point.colour)));
}

void Form1::draw_above(QPainter& painter, const QRegion& exposed) {
    if (session_.mode != Mode::normal) {
        overlay_.ajout_graph(painter, exposed, view_->level(), pointed_province_);
        if (outlined_)
            outlined_->draw(painter, exposed, view_->level());
        return;
    }
    for (const QRect& rectangle : exposed) {
        painter.setClipRect(rectangle); // round dots that are drawn twice have darker edges
        draw_dots(painter, dots_, rectangle, view_->level());
    }
}

} // namespace map
