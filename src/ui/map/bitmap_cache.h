#pragma once

#include "data/place.h"

#include <QDateTime>
#include <QImage>
#include <QString>

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace map {

/// What a bitmap file shows on the map.
struct Bitmap {
    QImage image;                       // null when there is nothing to show
    std::optional<data::Place> problem; // why, with the file
};

/// Bitmaps that are read once and kept until their file changes.
class BitmapCache {
  public:
    /// Returns the first of the frames that the bitmap with that stored path holds side by side.
    /// The colour of its top left pixel is transparent. Fewer than one frame are one; a frame is at
    /// least one pixel wide. The reference stays valid. Never throws.
    const Bitmap& first_frame(const std::string& path, int frames);

    /// Lets each bitmap's file be looked at again, once, for changes.
    void look_again() { ++round_; }

  private:
    struct CachedBitmap {
        QString native_path; // to look for it in another letter case takes a listing of the folder
        Bitmap bitmap;
        QDateTime modified;
        qint64 size = -1; // bytes of the file
        unsigned looked_at = 0;
    };

    std::map<std::pair<std::string, int>, CachedBitmap> cached_; // by path and frames
    unsigned round_ = 1;
};

} // namespace map
