#include "map/bitmap_cache.h"

#include "base/stored_path.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace map {

namespace {

/// Makes every pixel of the colour that the top left pixel of the bitmap has transparent.
QImage with_transparency(const QImage& frame) {
    QImage image = frame
                       .convertToFormat(QImage::Format_RGB32) // opaque, whatever the file says
                       .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRgb transparent = image.isNull() ? 0 : image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::replace(row, row + image.width(), transparent, QRgb{0});
    }
    return image;
}

Bitmap read_first_frame(const QString& path, int frames) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    const int width = std::max(image.width() / std::max(frames, 1), 1);
    Bitmap bitmap;
    if (!image.isNull())
        bitmap.image = with_transparency(image.copy(0, 0, width, image.height()));
    if (bitmap.image.isNull())
        bitmap.problem = QDir::toNativeSeparators(path) + ": " + reader.errorString();
    return bitmap;
}

} // namespace

const Bitmap& BitmapCache::first_frame(const std::string& path, int frames) {
    Kept& kept = kept_[{path, frames}];
    if (kept.looked_at == round_)
        return kept.bitmap;
    const bool is_new = kept.looked_at == 0;
    kept.looked_at = round_;

    if (is_new)
        kept.native_path = base::native_path(path);
    const QFileInfo file(kept.native_path);
    const QDateTime modified = file.lastModified();
    const qint64 size = file.exists() ? file.size() : -1;
    if (is_new || modified != kept.modified || size != kept.size) {
        kept.modified = modified;
        kept.size = size;
        kept.bitmap = read_first_frame(kept.native_path, frames);
    }
    return kept.bitmap;
}

} // namespace map
