#include "map/form1.h"

#include "base/messages.h"
#include "data/numbers.h"
#include "map/map_scroll_area.h"
#include "map/picture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <cmath>
#include <utility>

namespace map {

namespace {

constexpr int dot_size = 10; // pixels

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

QImage dot_image() {
    QImage image(dot_size, dot_size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::black, dot_size, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(dot_size, dot_size) / 2);
    return image;
}

} // namespace

Form1::Form1(shell::Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      map_1_(session.maps.map_1_path),
      map_2_(open_optional(session.maps.map_2_path)),
      id_map_(session.maps.id_map_path),
      overlay_(session),
      scroll_area_(new MapScrollArea(this)),
      surfaces_(new QWidget) {
    setObjectName(QStringLiteral("Form1"));
    surfaces_->setAttribute(Qt::WA_OpaquePaintEvent); // the visible surface covers it
    add_picture(ShownMap::map_1, "Picture1", map_1_);
    if (map_2_)
        add_picture(ShownMap::map_2, "Picture2", *map_2_);
    add_picture(ShownMap::id_map, "Picture_id", id_map_);

    scroll_area_->setWidget(surfaces_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_area_);

    connect(&overlay_, &OverlayPreview::problem, this, &Form1::tell);
    connect(scroll_area_, &MapScrollArea::tabbed, this, &Form1::tabbed);
    session_.port_placement.stage = 0;
    show_map(ShownMap::map_1);
}

void Form1::add_picture(ShownMap which, const char* name, const MapImage& image) {
    auto* picture = new Picture(
        image, [this](QPainter& painter, const QRegion& exposed) { draw_above(painter, exposed); },
        surfaces_);
    picture->setObjectName(QString::fromLatin1(name));
    connect(picture, &Picture::pressed, this, &Form1::press);
    connect(picture, &Picture::moved, this, &Form1::move);
    connect(picture, &Picture::released, this, &Form1::release);
    connect(picture, &Picture::problem, this, &Form1::tell);
    pictures_[which] = picture;
}

QSize Form1::sizeHint() const {
    return id_map_.size();
}

void Form1::show_map(ShownMap which) {
    Picture* shown = pictures_[which];
    if (shown == nullptr)
        return;
    // A surface that is hidden with the focus on it would leave the scrolling to Qt.
    const bool has_focus = surfaces_->isAncestorOf(QApplication::focusWidget());
    shown->show();
    if (has_focus)
        shown->setFocus();
    for (Picture* picture : pictures_) {
        if (picture != nullptr)
            picture->setVisible(picture == shown);
    }
    surfaces_->resize(shown->size());
    told_.clear();
    work_out_dots();
}

void Form1::clear_graphique() {
    for (const ShownMap which : {ShownMap::map_2, ShownMap::map_1, ShownMap::id_map}) {
        if (Picture* picture = pictures_[which])
            picture->update();
    }
}

void Form1::selection_or_mode_changed() {
    told_.clear();
    work_out_dots();
    clear_graphique();
}

void Form1::graphics_changed() {
    told_.clear();
    clear_graphique();
}

void Form1::tell(const QString& reason) {
    if (reason.isEmpty() || told_.contains(reason))
        return;
    told_.insert(reason);
    emit problem(reason);
}

// --- the pointer

void Form1::press(const QMouseEvent& event) {
    pressed_ = event.position();
    if (event.button() == Qt::MiddleButton)
        drag_ = Drag{event.globalPosition().toPoint(), scroll_area_->corner()};
}

void Form1::move(const QMouseEvent& event) {
    if (drag_ && event.buttons().testFlag(Qt::MiddleButton))
        drag_to(event.globalPosition().toPoint());
    if (event.buttons() != Qt::NoButton)
        return;
    if (const auto pointed_at = id_map_point(event.position()))
        point_at(pointed_at->identifier, event.position());
}

void Form1::release(const QMouseEvent& event) {
    if (event.button() == Qt::MiddleButton) {
        const auto drag = std::exchange(drag_, std::nullopt);
        if (drag && drag->moved)
            return;
    }
    click(event);
}

void Form1::drag_to(const QPoint& pointer) {
    const QPoint way = pointer - drag_->pointer;
    drag_->moved = drag_->moved || way.manhattanLength() >= QApplication::startDragDistance();
    if (drag_->moved)
        scroll_area_->scroll_to(drag_->scrolled - way);
}

void Form1::keyPressEvent(QKeyEvent* event) {
    // The scroll area takes the arrow and page keys before.
    if (event->key() == Qt::Key_Home)
        scroll_area_->scroll_to({0, 0});
    else if (event->key() == Qt::Key_End)
        scroll_area_->scroll_to({surfaces_->width(), surfaces_->height()});
    else
        QWidget::keyPressEvent(event);
}

void Form1::click(const QMouseEvent& event) {
    const auto clicked = id_map_point(event.position());
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
                      data::to_int16(pressed_.y(), "Y of the press on the map"), province};
    const PortPlacement& port = session_.port_placement;
    const bool sea_was_awaited = port.stage == 1;
    const QRect before = overlay_.bounds(province);
    map::enter_position(session_.mode, click, session_.maps, session_.port_placement,
                        session_.provinces);
    if (port.stage == 1 && !sea_was_awaited) { // only the port has moved, which waits for its sea
        update_shown(before);
        update_shown(overlay_.bounds(province));
    } else {
        clear_graphique();
    }
}

void Form1::update_shown(const QRect& changed) {
    for (Picture* picture : pictures_) {
        if (picture != nullptr)
            picture->update(changed);
    }
}

void Form1::point_at(int province, const QPointF& position) {
    const int before = std::exchange(pointed_province_, province);
    if (before != province && session_.mode != Mode::normal) {
        update_shown(overlay_.bounds(before));
        update_shown(overlay_.bounds(province));
    }
    emit pointed(province, position);
}

std::optional<Form1::IdMapPoint> Form1::id_map_point(const QPointF& position) {
    const QPoint point(static_cast<int>(std::floor(position.x())),
                       static_cast<int>(std::floor(position.y())));
    MapReader reader(id_map_);
    const auto colour = reader.colour_at(point);
    tell(reader.problem());
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
    tell(reader.problem());
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

void Form1::draw_dots(QPainter& painter, const QRect& exposed) const {
    static const QImage dot = dot_image();
    constexpr int reach = dot_size / 2; // a dot lies around its point
    const auto first = [](int from) {
        return (std::max(from - reach, 0) + dot_spacing - 1) / dot_spacing;
    };
    const auto end = [](int to, int count) {
        return std::min((to + reach) / dot_spacing + 1, count);
    };
    const int end_row = end(exposed.bottom(), dots_.rows());
    const int end_column = end(exposed.right(), dots_.columns());
    for (int row = first(exposed.top()); row < end_row; ++row) {
        for (int column = first(exposed.left()); column < end_column; ++column) {
            if (dots_.has_dot(column, row))
                painter.drawImage(column * dot_spacing - reach, row * dot_spacing - reach, dot);
        }
    }
}

void Form1::draw_above(QPainter& painter, const QRegion& exposed) {
    if (session_.mode != Mode::normal) {
        overlay_.ajout_graph(painter, exposed, pointed_province_);
        return;
    }
    for (const QRect& rectangle : exposed) {
        painter.setClipRect(rectangle); // round dots that are drawn twice have darker edges
        draw_dots(painter, rectangle);
    }
}

} // namespace map
