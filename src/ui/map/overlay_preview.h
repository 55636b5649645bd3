#pragma once

#include "map/bitmap_cache.h"
#include "map/stored_positions.h"
#include "map/zoom_level.h"
#include "shell/session.h"

#include <QHash>
#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QSet>
#include <QString>

#include <string>
#include <utility>
#include <vector>

class QPainter;

namespace map {

/// Shows on the map what the game draws at the positions that the mode places: the sprites of the
/// previewed sets, the terrain drawings with their art, and a marker where there is no picture. All
/// of it grows and shrinks with the map, but never below what can be seen.
class OverlayPreview : public QObject {
    Q_OBJECT

  public:
    /// The session must outlive the preview.
    explicit OverlayPreview(const shell::Session& session);

    /// Draws what reaches into the region (shown pixels), the pointed province's graphics outlined;
    /// -1 for none. Never throws.
    void ajout_graph(QPainter& painter, const QRegion& exposed, ZoomLevel level,
                     int pointed_province);

    /// Returns what painting the province's graphics covers, in shown pixels; empty for none.
    QRect bounds(int province, ZoomLevel level) const;

  signals:
    /// Why a marker stands for a picture, in the user's terms; once for a painting.
    void problem(const QString& reason);

  private:
    /// What stands for a position: an image, the pixel of it that lies on the position, and why it
    /// is the marker.
    struct Graphic {
        const QImage* image;
        QPoint origin;
        const data::Place* problem = nullptr; // kept by the bitmap
    };

    /// Rectangles of graphics, with the colours of their outlines.
    using Outlines = std::vector<std::pair<QRect, QColor>>;

    void ajout_graphique(QPainter& painter, const StoredPosition& position, ZoomLevel level,
                         int pointed_province, Outlines& outlines);
    void draw(QPainter& painter, const QRect& picture, const QImage& image);

    Graphic graphic_of(const StoredPosition& position) const;
    Graphic sprite_graphic(gfx::SpriteKind kind) const;
    Graphic drawing_graphic(const StoredPosition& position) const;
    Graphic marker(const data::Place* problem = nullptr) const {
        return {&marker_, marker_origin, problem};
    }
    bool shows_drawings() const;
    const Bitmap& terrain_art(const std::string& file) const;

    QRect largest_extent(ZoomLevel level) const;
    QImage label_of(int province) const;
    QImage label(int sea) const;

    static constexpr QPoint marker_origin{6, 6};

    const shell::Session& session_;
    QImage marker_;
    mutable BitmapCache bitmaps_;       // what it keeps is what the files hold
    QSet<const data::Place*> told_;     // while it paints
    mutable QHash<int, QImage> labels_; // by sea; to write a text costs many times an image
    QHash<qint64, QImage> small_;       // by the image that was made smaller, for one level
    ZoomLevel level_of_small_;
};

} // namespace map
