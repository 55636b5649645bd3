#pragma once

#include "base/watched_file.h"
#include "map/bitmap_file.h"
#include "map/identification.h"
#include "map/strip_reader.h"
#include "map/zoom_level.h"

#include <QFile>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace map {

/// A map's image. An uncompressed bitmap stays in its file, and only what is looked at is read; any
/// other image is decoded into memory.
class MapImage {
  public:
    /// Opens the image at the stored path. Throws file not found, path not found, permission denied
    /// or path/file access error with the file and what was expected.
    explicit MapImage(std::string_view path);

    /// Returns the size in pixels.
    QSize size() const { return size_; }

    /// Opens the image again when its file was changed since this was done last. Returns whether it
    /// was; throws what opening it throws, and stays as it is then.
    bool follow_file();

  private:
    friend class MapReader;

    base::WatchedFile file_;
    QString file_name_; // the system's path
    std::string head_;
    BitmapLayout layout_;
    QImage decoded_; // null for an image that stays in its file
    QSize size_;
};

/// One look at an image. Its file is open only for so long, and its header is read each time: other
/// programs may shorten, replace or delete the file between two looks.
class MapReader : public StripReader {
  public:
    explicit MapReader(const MapImage& image);

    /// Fills `pixels` with row y's pixels first_x (0 or above), first_x + step, and so on;
    /// no_pixel outside the image. Returns false, and fills all with no_pixel, for a row that is
    /// outside or cannot be read.
    bool read_row(int y, int first_x, int step, std::span<Pixel> pixels);

    /// Returns the colour of the point (pixels); nothing outside the image and where the file
    /// cannot be read.
    std::optional<Colour> colour_at(QPoint point);

    /// Returns the identifier at the point (pixels); 0 outside the image and where the file cannot
    /// be read.
    int province_at(QPoint point) { return province_of(colour_at(point).value_or(0)); }

    /// Fills the upper left corner of `target`, a 32-bit RGB image of the rectangle's size or
    /// larger, with the rectangle (shown pixels, inside the image) as it is shown at the level;
    /// grey where it cannot be read. Below level 1 a shown pixel is the mean of four of the image:
    /// the one in its corner, the one half a shown pixel to the right, and those a whole one below.
    void read(const QRect& shown, ZoomLevel level, QImage& target) override;

    /// Like read, but every shown pixel is the one of the image that a click on it means, whatever
    /// the level; no_pixel outside the image (of a smaller map) and where it cannot be read.
    void read_samples(const QRect& shown, ZoomLevel level, QImage& target);

    /// Returns why something inside the image could not be read, with the file; nothing while all
    /// could.
    const std::optional<data::Place>& problem() const override { return problem_; }

  private:
    void read_new_layout(std::string_view head);
    void note_problem(const data::Place& reason);
    bool read_pixels(int y, int first_x, int step, std::span<Pixel> pixels);
    bool read_shown_row(int y, int first_shown_x, ZoomLevel level, std::span<Pixel> shown);
    bool read_pairs(int y, int first_shown_x, ZoomLevel level, std::vector<Pixel>& pairs);
    void read_rows(const QRect& shown, ZoomLevel level, QImage& target, Pixel otherwise);
    void read_means(const QRect& shown, ZoomLevel level, QImage& target);

    const MapImage& image_;
    QFile file_;
    std::optional<BitmapLayout> new_layout_; // of a file that was changed since it was opened
    const BitmapLayout* layout_ = nullptr;   // null when the file fits no longer
    std::vector<char> bytes_;
    std::vector<Pixel> row_; // kept from one row to the next, like the bytes
    std::vector<Pixel> next_row_;
    std::optional<data::Place> problem_;
};

} // namespace map
