#include "map/map_image.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "map/decode_image.h"
#include "map/wait_cursor.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <limits>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace map {

namespace {

constexpr Pixel unreadable = 0xFF808080;

QSize size_of(const BitmapLayout& layout) {
    return {layout.width, layout.height};
}

/// Fills `pixels` with the row's pixels first_x, first_x + step, and so on of a decoded image.
void copy_pixels(const QImage& image, int y, int first_x, int step, std::span<Pixel> pixels) {
    const uchar* row = image.constScanLine(y);
    const auto fill = [=](auto pixel_at) {
        for (qsizetype x = first_x; Pixel & pixel : pixels) {
            pixel = pixel_at(x);
            x += step;
        }
    };
    if (image.format() == QImage::Format_Indexed8) {
        const QList<QRgb> colours = image.colorTable();
        fill([&](qsizetype x) { return colours[row[x]]; });
    } else {
        const auto* wide_row = reinterpret_cast<const Pixel*>(row);
        fill([=](qsizetype x) { return wide_row[x]; });
    }
}

/// Reads the bytes at that place of the file; false unless all are there.
bool read_at(QFile& file, std::uint64_t begin, std::span<char> bytes) {
    const auto size = static_cast<qint64>(bytes.size());
#ifdef Q_OS_UNIX
    // A painting reads a thousand rows: one call of the system for each, not two.
    if (::pread(file.handle(), bytes.data(), bytes.size(), static_cast<off_t>(begin)) == size)
        return true;
#endif
    return file.seek(static_cast<qint64>(begin)) && file.read(bytes.data(), size) == size;
}

/// Fills `means` with the means of the pixels 2 i and 2 i + 1 of both rows.
void mean_of_four(std::span<const Pixel> upper, std::span<const Pixel> lower,
                  std::span<Pixel> means) {
    constexpr Pixel every_other_byte = 0x00FF00FF;
    const auto sum = [&](std::size_t i, unsigned shift) {
        const auto part = [&](Pixel pixel) { return pixel >> shift & every_other_byte; };
        return part(upper[i]) + part(upper[i + 1]) + part(lower[i]) + part(lower[i + 1]);
    };
    for (std::size_t i = 0; i < means.size(); ++i)
        means[i] = (sum(2 * i, 0) >> 2 & every_other_byte) | (sum(2 * i, 8) >> 2 & every_other_byte)
                                                                 << 8;
}

} // namespace

MapImage::MapImage(std::string_view path)
    : file_(std::string(path)),
      file_name_(base::native_path(path)),
      head_(base::read_file(path, bitmap_head_size)) {
    std::optional<BitmapLayout> layout;
    try {
        const auto file_size = static_cast<std::uint64_t>(QFileInfo(file_name_).size());
        layout = read_bitmap_layout(head_, file_size);
    } catch (const data::RunTimeError& error) {
        throw error.within(base::shown_path(path));
    }
    if (layout) {
        layout_ = std::move(*layout);
        size_ = size_of(layout_);
    } else {
        const WaitCursor wait;
        decoded_ = decode_image(path);
        size_ = decoded_.size();
    }
}

bool MapImage::follow_file() {
    if (!file_.has_changed())
        return false;
    *this = MapImage(std::string(file_.path()));
    return true;
}

MapReader::MapReader(const MapImage& image) : image_(image) {
    if (!image.decoded_.isNull())
        return;
    file_.setFileName(image.file_name_);
    if (!file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        note_problem(data::Phrase(base::path_bytes(file_.errorString())));
        return;
    }
    std::array<char, bitmap_head_size> buffer = {};
    const qint64 read = file_.read(buffer.data(), buffer.size());
    const std::string_view head(buffer.data(), static_cast<std::size_t>(std::max<qint64>(read, 0)));
    if (head == image.head_)
        layout_ = &image.layout_;
    else
        read_new_layout(head);
}

void MapReader::read_new_layout(std::string_view head) {
    try {
        // Half written perhaps: the rows that are there are worth showing.
        constexpr auto any_size = std::numeric_limits<std::uint64_t>::max();
        new_layout_ = read_bitmap_layout(head, any_size);
    } catch (const data::RunTimeError& error) {
        note_problem(error.place());
        return;
    }
    if (!new_layout_) {
        note_problem(data::Phrase(data::Text::reason_other_kind));
    } else if (const QSize now = size_of(*new_layout_); now != image_.size_) {
        note_problem(data::Phrase(data::Text::reason_other_size, now.width(), now.height(),
                                  image_.size_.width(), image_.size_.height()));
    } else {
        layout_ = &*new_layout_;
    }
}

void MapReader::note_problem(const data::Place& reason) {
    if (!problem_)
        problem_ = reason.within(base::path_bytes(QDir::toNativeSeparators(image_.file_name_)));
}

std::optional<Colour> MapReader::colour_at(QPoint point) {
    if (!QRect({0, 0}, image_.size_).contains(point))
        return {};
    Pixel pixel = no_pixel;
    if (!read_row(point.y(), point.x(), 1, {&pixel, 1}))
        return {};
    return pixel & 0xFFFFFF;
}

bool MapReader::read_pixels(int y, int first_x, int step, std::span<Pixel> pixels) {
    if (!image_.decoded_.isNull()) {
        copy_pixels(image_.decoded_, y, first_x, step, pixels);
        return true;
    }
    if (layout_ == nullptr)
        return false;
    const int last_x = first_x + step * (static_cast<int>(pixels.size()) - 1);
    const FilePart part = part_of_row(*layout_, y, first_x, last_x);
    bytes_.resize(part.size);
    if (!read_at(file_, part.begin, bytes_)) {
        note_problem(file_.error() == QFileDevice::NoError
                         ? data::Phrase(data::Text::reason_row_missing, y)
                         : data::Phrase(base::path_bytes(file_.errorString())));
        return false;
    }
    decode_pixels(*layout_, bytes_, first_x, step, pixels);
    return true;
}

bool MapReader::read_row(int y, int first_x, int step, std::span<Pixel> pixels) {
    const QSize size = image_.size_;
    std::size_t inside = 0;
    if (y >= 0 && y < size.height() && first_x < size.width())
        inside = std::min(pixels.size(),
                          static_cast<std::size_t>((size.width() - first_x - 1) / step + 1));
    const bool readable = inside > 0 && read_pixels(y, first_x, step, pixels.first(inside));
    const auto rest = readable ? pixels.subspan(inside) : pixels;
    std::fill(rest.begin(), rest.end(), no_pixel);
    return readable;
}

/// Reads what the level shows of row y, every pixel alone.
bool MapReader::read_shown_row(int y, int first_shown_x, ZoomLevel level, std::span<Pixel> shown) {
    if (level.enlargement() == 1)
        return read_row(y, level.on_map(first_shown_x), level.step(), shown);
    const int first_x = level.on_map(first_shown_x);
    const int last_x = level.on_map(first_shown_x + static_cast<int>(shown.size()) - 1);
    const int count = last_x - first_x + 1;
    row_.resize(static_cast<std::size_t>(count));
    const bool readable = read_row(y, first_x, 1, row_);
    const int offset = first_shown_x - level.shown(first_x);
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i] = row_[static_cast<std::size_t>(level.on_map(static_cast<int>(i) + offset))];
    return readable;
}

/// Reads two pixels of row y for every shown one.
bool MapReader::read_pairs(int y, int first_shown_x, ZoomLevel level, std::vector<Pixel>& pairs) {
    const bool readable = read_row(y, level.on_map(first_shown_x), level.step() / 2, pairs);
    if (pairs.back() == no_pixel) // beyond the right edge
        pairs.back() = pairs[pairs.size() - 2];
    return readable;
}

void MapReader::read(const QRect& shown, ZoomLevel level, QImage& target) {
    if (level.step() > 1)
        read_means(shown, level, target);
    else
        read_rows(shown, level, target, unreadable);
}

void MapReader::read_samples(const QRect& shown, ZoomLevel level, QImage& target) {
    read_rows(shown, level, target, no_pixel);
}

/// Fills the target with single pixels, and with the given one where they cannot be read.
void MapReader::read_rows(const QRect& shown, ZoomLevel level, QImage& target, Pixel otherwise) {
    for (int row = 0; row < shown.height(); ++row) {
        const int y = level.on_map(shown.top() + row);
        const auto pixels = row_of(target, row, shown.width());
        if (row > 0 && y == level.on_map(shown.top() + row - 1)) {
            const auto above = row_of(target, row - 1, shown.width());
            std::copy(above.begin(), above.end(), pixels.begin());
        } else if (!read_shown_row(y, shown.left(), level, pixels)) {
            std::fill(pixels.begin(), pixels.end(), otherwise);
        }
    }
}

/// Fills the target with the means of four pixels each. Each row that is read serves two shown
/// ones, so that no more rows are read than are shown.
void MapReader::read_means(const QRect& shown, ZoomLevel level, QImage& target) {
    const auto width = static_cast<std::size_t>(shown.width());
    row_.resize(2 * width);
    next_row_.resize(2 * width);
    bool readable = read_pairs(level.on_map(shown.top()), shown.left(), level, row_);
    for (int row = 0; row < shown.height(); ++row) {
        const int next_y = level.on_map(shown.top() + row + 1);
        const bool next_readable =
            next_y < image_.size_.height() && read_pairs(next_y, shown.left(), level, next_row_);
        const auto pixels = row_of(target, row, shown.width());
        if (readable)
            mean_of_four(row_, next_readable ? next_row_ : row_, pixels);
        else
            std::fill(pixels.begin(), pixels.end(), unreadable);
        row_.swap(next_row_);
        readable = next_readable;
    }
}

} // namespace map
