#include "map/bitmap_cache.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "map/decode_image.h"
#include "map/image_error.h"

#include <QFileInfo>

#include <algorithm>

namespace map {

namespace {

/// Makes every pixel of the colour that the top left pixel of the bitmap has transparent.
QImage with_transparency(const QImage& opaque) {
    QImage image = opaque.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QRgb transparent = image.isNull() ? 0 : image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::replace(row, row + image.width(), transparent, QRgb{0});
    }
    return image;
}

bool has_opaque_pixel(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return pixel != 0; }))
            return true;
    }
    return false;
}

Bitmap read_first_frame(const std::string& path, int frames) {
    try {
        const QImage all = decode_image(path);
        const int width = std::max(all.width() / std::max(frames, 1), 1);
        QImage frame = with_transparency(all.copy(0, 0, width, all.height()));
        if (!has_opaque_pixel(frame))
            throw image_error(data::Text::reason_transparent).within(base::shown_path(path));
        return {frame, {}};
    } catch (const data::RunTimeError& error) {
        return {{}, error.place()};
    }
}

} // namespace

const Bitmap& BitmapCache::first_frame(const std::string& path, int frames) {
    CachedBitmap& cached = cached_[{path, frames}];
    if (cached.looked_at == round_)
        return cached.bitmap;
    const bool is_new = cached.looked_at == 0;
    cached.looked_at = round_;

    if (is_new)
        cached.native_path = base::native_path(path);
    const QFileInfo file(cached.native_path);
    const QDateTime modified = file.lastModified();
    const qint64 size = file.exists() ? file.size() : -1;
    if (is_new || modified != cached.modified || size != cached.size) {
        cached.modified = modified;
        cached.size = size;
        cached.bitmap = read_first_frame(path, frames);
    }
    return cached.bitmap;
}

} // namespace map
