#pragma once

#include "map/map_image.h"
#include "map/strip_reader.h"
#include "map/zoom_level.h"

#include <QWidget>

#include <functional>

namespace map {

/// A surface that shows an image at a zoom level: all its coordinates are shown pixels. Who changes
/// what it shows updates it.
class Picture : public QWidget {
    Q_OBJECT

  public:
    /// Draws what lies over the image within the region (shown pixels), and clips to it.
    using DrawAbove = std::function<void(QPainter&, const QRegion&)>;

    /// The image must outlive the surface.
    Picture(const MapImage& image, DrawAbove draw_above, QWidget* parent);

    /// Returns the image's size in pixels of the map.
    QSize image_size() const { return image_.size(); }

    /// Takes the image's size at the level.
    void set_level(ZoomLevel level);

    /// Shows from now on what that opens, by several threads at once, in the place of the image
    /// alone.
    void show_strips(OpenStrips open);

  signals:
    void pressed(const QMouseEvent& event);
    void moved(const QMouseEvent& event);
    void released(const QMouseEvent& event);
    /// A part of the image could not be read, and is grey.
    void problem(const data::Place& reason);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { emit pressed(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { emit moved(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { emit released(*event); }

  private:
    const MapImage& image_;
    DrawAbove draw_above_;
    OpenStrips open_strips_;
    ZoomLevel level_;
};

} // namespace map
