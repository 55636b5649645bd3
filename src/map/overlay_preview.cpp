#include "map/overlay_preview.h"

#include "data/columns.h"
#include "data/numbers.h"
#include "gfx/terrain_art.h"
#include "map/position_columns.h"
#include "shell/qt_text.h"
#include "shell/stored_path.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace map {

namespace {

constexpr int marker_size = 13; // pixels
constexpr int outline_width = 3;
constexpr int label_height = 14;
constexpr int label_gap = 4; // between a port and the id of its sea
constexpr int largest_shown_id = 32767;

constexpr data::FileColumn climate_column{8};
constexpr data::FileColumn terrain_column{14};

constexpr QColor pointed_colour(255, 255, 0);
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

data::FileColumn variant_column(int drawing) {
    const auto* columns =
        std::find_if(position_columns.begin(), position_columns.end(),
                     [drawing](const auto& candidate) { return candidate.drawing == drawing; });
    return columns->variant();
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

QRect place(const QImage& image, QPoint origin, const StoredPosition& position) {
    const QPoint pixel(static_cast<int>(std::floor(position.x)),
                       static_cast<int>(std::floor(position.y)));
    return {pixel - origin, image.size()};
}

QFont label_font() {
    QFont font;
    font.setPixelSize(label_height - 3);
    font.setBold(true);
    return font;
}

QRect label_place(const QRect& picture, const QString& label) {
    if (label.isEmpty())
        return {};
    const int width = QFontMetrics(label_font()).horizontalAdvance(label) + 2 * label_gap;
    return {picture.right() + 1 + label_gap, picture.center().y() - label_height / 2, width,
            label_height};
}

QRect outline_place(const QRect& picture) {
    return picture.adjusted(-outline_width, -outline_width, outline_width, outline_width);
}

void draw_outline(QPainter& painter, const QRect& picture, QColor colour) {
    const QRect outer = outline_place(picture);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(outer.adjusted(0, 0, -1, -1));
    painter.setPen(QPen(colour, 1));
    painter.drawRect(outer.adjusted(1, 1, -2, -2));
    painter.drawRect(outer.adjusted(2, 2, -3, -3));
}

void draw_label(QPainter& painter, const QRect& where, const QString& label) {
    painter.fillRect(where, QColor(0, 0, 96));
    painter.setPen(Qt::white);
    painter.drawText(where, Qt::AlignCenter, label);
}

} // namespace

OverlayPreview::OverlayPreview(const shell::Session& session)
    : session_(session), marker_(draw_marker()) {}

void OverlayPreview::forget_bitmaps() {
    bitmaps_.forget();
    reported_.clear();
}

void OverlayPreview::paint(QPainter& painter, const QRect& exposed, int pointed_province) {
    if (session_.mode == Mode::normal)
        return;
    bitmaps_.expect_changes();
    const auto& port = session_.port_placement;
    const bool sea_is_awaited = session_.mode == Mode::port && port.stage == 1;

    painter.save();
    painter.setFont(label_font());
    std::vector<std::pair<QRect, QColor>> outlines; // above everything else
    const auto positions =
        positions_in(session_.provinces, session_.mode, session_.maps, area_reaching_into(exposed));
    for (const auto& position : positions) {
        const Look look = look_of(position);
        report(look.problem);
        const QRect picture = place(*look.image, look.origin, position);
        painter.drawImage(picture.topLeft(), *look.image);
        if (const QString label = label_of(position.province); !label.isEmpty())
            draw_label(painter, label_place(picture, label), label);
        if (sea_is_awaited && position.province == port.province)
            outlines.emplace_back(picture, waiting_colour);
        else if (position.province == pointed_province)
            outlines.emplace_back(picture, pointed_colour);
    }
    for (const auto& [picture, colour] : outlines)
        draw_outline(painter, picture, colour);
    painter.restore();
}

QRect OverlayPreview::bounds(int province) const {
    QRect covered;
    if (province < 1 || province > data::last_province)
        return covered;
    for (const auto& position :
         positions_of(session_.provinces, session_.mode, session_.maps, province)) {
        const Look look = look_of(position);
        const QRect picture = place(*look.image, look.origin, position);
        covered |= outline_place(picture) | label_place(picture, label_of(province));
    }
    return covered;
}

OverlayPreview::Look OverlayPreview::look_of(const StoredPosition& position) const {
    if (const auto kind = sprite_kind(session_.mode))
        return sprite_look(*kind);
    return drawing_look(position);
}

OverlayPreview::Look OverlayPreview::sprite_look(gfx::SpriteKind kind) const {
    const auto& rows = session_.graphics.sprites.of(kind).rows;
    const auto row = static_cast<std::size_t>(session_.graphics.previewed(kind));
    if (row >= rows.size() || rows[row].bitmap_path.empty())
        return marker_look(QStringLiteral("No sprite set of the kind \"%1\" is loaded")
                               .arg(shell::to_qstring(gfx::info(kind).word)));
    const auto& sprite = rows[row];
    const Bitmap& bitmap = bitmaps_.first_frame(sprite.bitmap_path, sprite.frames);
    if (bitmap.image.isNull())
        return marker_look(bitmap.problem);
    return {&bitmap.image, {sprite.origin_x, sprite.origin_y}, {}};
}

OverlayPreview::Look OverlayPreview::drawing_look(const StoredPosition& position) const {
    if (!session_.graphics.shows_drawings)
        return marker_look();
    const auto cell = [&](data::FileColumn column) -> const std::string& {
        return session_.provinces.cell(position.province, data::table_column(column));
    };
    const Bitmap& art = terrain_art(gfx::terrain_art_file(
        cell(terrain_column), cell(climate_column), cell(variant_column(position.drawing))));
    if (art.image.isNull())
        return marker_look(art.problem);
    return {&art.image, {art.image.width() / 2, art.image.height() / 2}, {}};
}

const Bitmap& OverlayPreview::terrain_art(const std::string& file) const {
    return bitmaps_.first_frame(shell::in_folder(session_.configuration.terrain_art_folder, file),
                                1);
}

/// Returns what the largest picture of the mode with all that belongs to it covers around a
/// position at (0, 0).
QRect OverlayPreview::largest_extent() const {
    const StoredPosition zero{0, PositionColumns::no_drawing, 0, 0};
    QRect extent = place(marker_, marker_origin, zero);
    if (const auto kind = sprite_kind(session_.mode)) {
        const Look sprite = sprite_look(*kind);
        extent |= place(*sprite.image, sprite.origin, zero);
    } else if (session_.graphics.shows_drawings) {
        for (const auto type : gfx::terrain_types) {
            for (int variant = 0; variant < gfx::terrain_variants; ++variant) {
                const QImage& art = terrain_art(gfx::terrain_art_file(type, variant)).image;
                extent |= place(art, {art.width() / 2, art.height() / 2}, zero);
            }
        }
    }
    if (session_.mode == Mode::port)
        extent |= label_place(extent, QString::number(largest_shown_id));
    return outline_place(extent);
}

/// Returns where the positions lie whose things reach into the rectangle.
Area OverlayPreview::area_reaching_into(const QRect& exposed) const {
    const QRect extent = largest_extent();
    return {static_cast<double>(exposed.left()) - extent.right(),
            static_cast<double>(exposed.top()) - extent.bottom(),
            static_cast<double>(exposed.right()) - extent.left() + 1,
            static_cast<double>(exposed.bottom()) - extent.top() + 1};
}

/// Returns the id of the sea that the province's port opens to; empty without one, and in every
/// other mode.
QString OverlayPreview::label_of(int province) const {
    if (session_.mode != Mode::port)
        return {};
    const double sea =
        data::leading_number(session_.provinces.cell(province, data::table_column(sea_of_port)));
    if (sea < 1 || sea > largest_shown_id)
        return {};
    return QString::number(static_cast<int>(sea));
}

void OverlayPreview::report(const QString& problem) {
    if (problem.isEmpty() || reported_.contains(problem))
        return;
    reported_.insert(problem);
    if (on_problem)
        on_problem(problem);
}

} // namespace map
