#include "map/decode_image.h"

#include "base/files.h"
#include "base/qt_text.h"
#include "map/bitmap_file.h"
#include "map/image_error.h"
#include "map/run_lengths.h"

#include <QBuffer>
#include <QImageReader>

#include <string>

namespace map {

namespace {

/// A pixel takes four bytes; the largest maps have 140 million of them.
constexpr qint64 most_megabytes = 2048;

/// Qt takes bitmaps that are cut short, and fills the rest with any colour.
void check_is_whole(std::string_view file) {
    read_bitmap_layout(file.substr(0, bitmap_head_size), file.size());
    check_run_lengths(file);
}

data::RunTimeError too_large(QSize size) {
    return image_error(data::Text::reason_image_memory, size.width(), size.height());
}

void check_size(QSize size) {
    const qint64 megabytes = qint64{4} * size.width() * size.height() >> 20;
    if (megabytes > most_megabytes)
        throw image_error(data::Text::reason_image_too_large, size.width(), size.height(),
                          megabytes, most_megabytes);
}

/// Makes 256 opaque colours of those that the image has.
void complete_colours(QImage& image) {
    constexpr QRgb opaque = 0xFF000000;
    QList<QRgb> colours = image.colorTable();
    for (QRgb& colour : colours)
        colour |= opaque;
    colours.resize(256, opaque);
    image.setColorTable(colours);
}

QList<QRgb> greys() {
    QList<QRgb> colours;
    for (int grey = 0; grey < 256; ++grey)
        colours += qRgb(grey, grey, grey);
    return colours;
}

/// Leaves of the many forms of pixels the two that readers know; null when memory lacks.
void simplify(QImage& image) {
    if (image.format() == QImage::Format_Grayscale8) {
        image.reinterpretAsFormat(QImage::Format_Indexed8);
        image.setColorTable(greys());
    } else if (image.colorCount() > 0) {
        image.convertTo(QImage::Format_Indexed8);
        if (!image.isNull())
            complete_colours(image);
    } else {
        image.convertTo(QImage::Format_RGB32);
    }
}

QImage decode(const std::string& file) {
    QImageReader::setAllocationLimit(0); // maps are larger than what Qt takes for reasonable
    const auto bytes = QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size()));
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    check_size(reader.size());
    QImage image = reader.read();
    if (image.isNull())
        throw image_error(data::Text::reason_no_image, base::to_bytes(reader.errorString()));
    const QSize size = image.size();
    check_size(size); // not every format tells it before
    simplify(image);
    if (image.isNull())
        throw too_large(size);
    return image;
}

} // namespace

QImage decode_image(std::string_view path) {
    const std::string file = base::read_file(path);
    try {
        if (file.empty())
            throw image_error(data::Text::reason_empty_image);
        check_is_whole(file);
        return decode(file);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
}

} // namespace map
