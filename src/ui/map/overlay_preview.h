#pragma once

#include "map/bitmap_cache.h"
#include "map/stored_positions.h"
#include "shell/session.h"

#include <QHash>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSet>
#include <QString>

#include <functional>
#include <string>

class QPainter;

namespace map {

/// Shows on the map what the game draws at the positions that the mode places: the sprites of the
/// previewed sets, the terrain drawings with their art, and a marker where there is no picture.
class OverlayPreview {
  public:
    /// The session must outlive the preview.
    explicit OverlayPreview(const shell::Session& session);

    /// Draws what reaches into the rectangle (pixels of the map), the pointed province's things
    /// outlined; -1 for none. Never throws.
    void paint(QPainter& painter, const QRect& exposed, int pointed_province);

    /// Returns what painting the province's things covers, in pixels of the map; empty for none.
    QRect bounds(int province) const;

    /// Receives why a marker stands for a picture, in the user's terms; every reason once.
    std::function<void(QString)> on_problem;

  private:
    /// What stands for a position: an image, the pixel of it that lies on the position, and why it
    /// is the marker.
    struct Look {
        const QImage* image;
        QPoint origin;
        QString problem;
    };

    Look look_of(const StoredPosition& position) const;
    Look sprite_look(gfx::SpriteKind kind) const;
    Look drawing_look(const StoredPosition& position) const;
    Look marker_look(const QString& problem = {}) const {
        return {&marker_, marker_origin, problem};
    }
    const Bitmap& terrain_art(const std::string& file) const;

    QRect largest_extent() const;
    Area area_reaching_into(const QRect& exposed) const;
    QImage label_of(int province) const;
    QImage label(int sea) const;
    void report(const QString& problem);

    static constexpr QPoint marker_origin{6, 6};

    const shell::Session& session_;
    QImage marker_;
    mutable BitmapCache bitmaps_;       // what it keeps is what the files hold
    mutable QHash<int, QImage> labels_; // by sea; to write a text costs many times an image
    QSet<QString> reported_;
};

} // namespace map
