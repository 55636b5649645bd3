#include "map/overlay_preview.h"

#include "base/shown_text.h"
#include "base/stored_path.h"
#include "data/columns.h"
#include "data/numbers.h"
#include "gfx/terrain_art.h"
#include "map/position_columns.h"
#include "map/zoomed_rect.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace map {

namespace {

constexpr int marker_size = 13;               // pixels
constexpr int smallest_size = 8;              // the longer side of what is shown of a graphic
constexpr ZoomLevel smallest_with_labels(-1); // smaller ones have no room for all of them
constexpr int outline_width = 3;
constexpr int label_height = 14;
constexpr int label_gap = 4; // between a port and the id of its sea
constexpr int largest_shown_id = 32767;

constexpr QColor pointed_colour(255, 255, 0);
constexpr QColor label_colour(0, 0, 96);
constexpr QColor waiting_colour(255, 128, 0);

std::optional<gfx::SpriteKind> sprite_kind(Mode mode) {
    switch (mode) {
    case Mode::ville:
        return gfx::SpriteKind::ville;
    case Mode::armees:
        return gfx::SpriteKind::armees;
    case Mode::port:
        return gfx::SpriteKind::port;
    case Mode::manuf:
        return gfx::SpriteKind::manuf;
    case Mode::dessin:
    case Mode::normal:
        break;
    }
    return {};
}

QImage draw_marker() {
    QImage image(marker_size, marker_size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 2));
    painter.setBrush(QColor(200, 0, 0));
    painter.drawEllipse(image.rect().adjusted(1, 1, -1, -1));
    return image;
}

/// Returns how large an image is shown at a level below 1.
double small_scale(QSize image, ZoomLevel level) {
    const int longer = std::max({image.width(), image.height(), 1});
    return std::max(1.0 / level.step(), std::min(1.0, static_cast<double>(smallest_size) / longer));
}

/// Returns where the image is shown whose pixel `origin` stands on the position.
QRect picture_rect(const QImage& image, QPoint origin, const StoredPosition& position,
                   ZoomLevel level) {
    const QPoint pixel(static_cast<int>(std::floor(position.x)),
                       static_cast<int>(std::floor(position.y)));
    if (level.step() == 1)
        return shown_rect(level, {pixel - origin, image.size()});
    const double scale = small_scale(image.size(), level);
    const QSize size = (QSizeF(image.size()) * scale).toSize().expandedTo({1, 1});
    return {QPoint(level.shown(pixel.x()), level.shown(pixel.y())) - origin * scale, size};
}

/// Returns the sea's id as it stands beside its port.
QImage draw_label(int sea) {
    const QString text = QString::number(sea);
    QFont font;
    font.setPixelSize(label_height - 3);
    font.setBold(true);
    const int width = QFontMetrics(font).horizontalAdvance(text) + 2 * label_gap;
    QImage image(width, label_height, QImage::Format_RGB32);
    image.fill(label_colour);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

/// Returns where the label stands beside the picture; empty for a label that is none.
QRect label_rect(const QRect& picture, const QImage& label) {
    return {{picture.right() + 1 + label_gap, picture.center().y() - label.height() / 2},
            label.size()};
}

QRect outline_rect(const QRect& picture) {
    return picture.adjusted(-outline_width, -outline_width, outline_width, outline_width);
}

/// Returns all that may be painted for a graphic with that picture and label.
QRect extent(const QRect& picture, const QImage& label) {
    return outline_rect(picture) | label_rect(picture, label);
}

/// Returns where the positions lie whose graphics reach into the rectangle (shown pixels).
Area area_reaching_into(const QRect& rectangle, const QRect& largest, ZoomLevel level) {
    const QRect shown(rectangle.topLeft() - largest.bottomRight(),
                      rectangle.bottomRight() - largest.topLeft());
    const QRect area = rect_on_map(level, shown);
    return {static_cast<double>(area.left()), static_cast<double>(area.top()),
            static_cast<double>(area.right()) + 1, static_cast<double>(area.bottom()) + 1};
}

void draw_outline(QPainter& painter, const QRect& picture, QColor colour) {
    const QRect outer = outline_rect(picture);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(outer.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(colour, 1));
    painter.drawRect(outer.adjusted(1, 1, -2, -2));
    painter.drawRect(outer.adjusted(2, 2, -3, -3));
}

} // namespace

OverlayPreview::OverlayPreview(const shell::Session& session)
    : session_(session), marker_(draw_marker()) {}

void OverlayPreview::ajout_graph(QPainter& painter, const QRegion& exposed, ZoomLevel level,
                                 int pointed_province) {
    if (session_.mode == Mode::normal)
        return;
    bitmaps_.look_again();
    told_.clear();
    if (std::exchange(level_of_small_, level) != level)
        small_.clear();
    const QRect largest = largest_extent(level);
    painter.save();
    for (const QRect& rectangle : exposed) {
        painter.setClipRect(rectangle);
        Outlines outlines; // above everything else
        for (const auto& position : positions_in(session_.provinces, session_.mode, session_.maps,
                                                 area_reaching_into(rectangle, largest, level)))
            ajout_graphique(painter, position, level, pointed_province, outlines);
        for (const auto& [picture, colour] : outlines)
            draw_outline(painter, picture, colour);
    }
    painter.restore();
}

void OverlayPreview::ajout_graphique(QPainter& painter, const StoredPosition& position,
                                     ZoomLevel level, int pointed_province, Outlines& outlines) {
    const Graphic graphic = graphic_of(position);
    if (graphic.problem && !told_.contains(graphic.problem)) {
        told_.insert(graphic.problem);
        emit problem(base::message_text(session_.language.text(*graphic.problem)));
    }
    const QRect picture = picture_rect(*graphic.image, graphic.origin, position, level);
    draw(painter, picture, *graphic.image);

    const auto& port = session_.port_placement;
    const bool waits =
        session_.mode == Mode::port && port.stage == 1 && position.province == port.province;
    const bool is_outlined = waits || position.province == pointed_province;
    if (is_outlined)
        outlines.emplace_back(picture, waits ? waiting_colour : pointed_colour);
    if (level.power() < smallest_with_labels.power() && !is_outlined)
        return;
    if (const QImage label = label_of(position.province); !label.isNull())
        painter.drawImage(label_rect(picture, label).topLeft(), label);
}

void OverlayPreview::draw(QPainter& painter, const QRect& picture, const QImage& image) {
    if (picture.width() >= image.width()) { // else it is one of many, and to be made once
        painter.drawImage(picture, image);
        return;
    }
    QImage& small = small_[image.cacheKey()];
    if (small.isNull())
        small = image.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(picture.topLeft(), small);
}

QRect OverlayPreview::bounds(int province, ZoomLevel level) const {
    QRect covered;
    if (province < 1 || province > data::last_province)
        return covered;
    for (const auto& position :
         positions_of(session_.provinces, session_.mode, session_.maps, province)) {
        const Graphic graphic = graphic_of(position);
        covered |= extent(picture_rect(*graphic.image, graphic.origin, position, level),
                          label_of(province));
    }
    return covered;
}

OverlayPreview::Graphic OverlayPreview::graphic_of(const StoredPosition& position) const {
    if (const auto kind = sprite_kind(session_.mode))
        return sprite_graphic(*kind);
    return drawing_graphic(position);
}

OverlayPreview::Graphic OverlayPreview::sprite_graphic(gfx::SpriteKind kind) const {
    static const data::Place no_sprite_set(data::Text::reason_no_sprite_set);
    const auto& rows = session_.graphics.sprites.of(kind).rows;
    const auto row = static_cast<std::size_t>(session_.graphics.previewed_row[kind]);
    if (row >= rows.size() || rows[row].bitmap_path.empty())
        return marker(&no_sprite_set);
    const auto& sprite = rows[row];
    const Bitmap& bitmap = bitmaps_.first_frame(sprite.bitmap_path, sprite.frames);
    if (bitmap.image.isNull())
        return marker(&*bitmap.problem);
    return {&bitmap.image, {sprite.origin_x, sprite.origin_y}};
}

OverlayPreview::Graphic OverlayPreview::drawing_graphic(const StoredPosition& position) const {
    static const data::Place no_terrain_art(data::Text::reason_no_terrain_art);
    if (!session_.graphics.shows_drawings)
        return marker();
    if (!shows_drawings())
        return marker(&no_terrain_art);
    const auto cell = [&](data::FileColumn column) -> const std::string& {
        return session_.provinces.cell(position.province, data::table_column(column));
    };
    const Bitmap& art = terrain_art(gfx::terrain_art_file(
        cell(data::column::terrain), cell(data::column::climate),
        cell(data::column::drawing_variant.at(static_cast<std::size_t>(position.drawing)))));
    if (art.image.isNull())
        return marker(&*art.problem);
    return {&art.image, {art.image.width() / 2, art.image.height() / 2}};
}

/// An art folder that turned out to be incomplete takes the menu's check mark with it.
bool OverlayPreview::shows_drawings() const {
    return session_.graphics.shows_drawings && session_.configuration.terrain_art_flag == 1;
}

const Bitmap& OverlayPreview::terrain_art(const std::string& file) const {
    return bitmaps_.first_frame(base::in_folder(session_.configuration.terrain_art_folder, file),
                                1);
}

/// Returns what the largest graphic of the mode covers around a position at (0, 0).
QRect OverlayPreview::largest_extent(ZoomLevel level) const {
    const StoredPosition zero{0, PositionColumns::no_drawing, 0, 0};
    if (const auto kind = sprite_kind(session_.mode)) {
        const Graphic sprite = sprite_graphic(*kind);
        return extent(picture_rect(*sprite.image, sprite.origin, zero, level),
                      label(largest_shown_id));
    }
    QRect largest = picture_rect(marker_, marker_origin, zero, level);
    if (shows_drawings()) {
        for (const auto type : gfx::terrain_types) {
            for (int variant = 0; variant < gfx::terrain_variants; ++variant) {
                const QImage& art = terrain_art(gfx::terrain_art_file(type, variant)).image;
                largest |= picture_rect(art, {art.width() / 2, art.height() / 2}, zero, level);
            }
        }
    }
    return outline_rect(largest);
}

/// Returns the id of the sea that the province's port opens to; null without one, and in every
/// other mode.
QImage OverlayPreview::label_of(int province) const {
    if (session_.mode != Mode::port)
        return {};
    const double sea = data::leading_number(
        session_.provinces.cell(province, data::table_column(data::column::port_sea)));
    if (sea < 1 || sea > largest_shown_id)
        return {};
    return label(static_cast<int>(sea));
}

QImage OverlayPreview::label(int sea) const {
    QImage& image = labels_[sea];
    if (image.isNull())
        image = draw_label(sea);
    return image;
}

} // namespace map
