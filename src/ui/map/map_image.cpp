#include "map/map_image.h"

#include "base/files.h"
#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "map/decode_image.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <limits>

namespace map {

namespace {

constexpr Pixel unreadable = 0xFF808080;

QSize size_of(const BitmapLayout& layout) {
    return {layout.width, layout.height};
}

std::span<Pixel> row_of(QImage& image, int row, int width) {
    return {reinterpret_cast<Pixel*>(image.scanLine(row)), static_cast<std::size_t>(width)};
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
    : file_name_(base::native_path(path)), head_(base::read_file(path, bitmap_head_size)) {
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
        decoded_ = decode_image(path);
        size_ = decoded_.size();
    }
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
        const auto* row =
            reinterpret_cast<const Pixel*>(image_.decoded_.constScanLine(y)) + first_x;
        for (Pixel& pixel : pixels) {
            pixel = *row;
            row += step;
        }
        return true;
    }
    if (layout_ == nullptr)
        return false;
    const int last_x = first_x + step * (static_cast<int>(pixels.size()) - 1);
    const FilePart part = part_of_row(*layout_, y, first_x, last_x);
    bytes_.resize(part.size);
    if (!file_.seek(static_cast<qint64>(part.begin)) ||
        file_.read(bytes_.data(), static_cast<qint64>(part.size)) !=
            static_cast<qint64>(part.size)) {
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

/// Reads row y with every pixel as wide as the level shows it.
bool MapReader::read_enlarged_row(int y, int first_shown_x, ZoomLevel level,
                                  std::span<Pixel> shown) {
    if (level.enlargement() == 1)
        return read_row(y, level.on_map(first_shown_x), level.step(), shown);
    const int first_x = level.on_map(first_shown_x);
    const int last_x = level.on_map(first_shown_x + static_cast<int>(shown.size()) - 1);
    row_.resize(static_cast<std::size_t>(last_x - first_x + 1));
    const bool readable = read_row(y, first_x, 1, row_);
    const int offset = first_shown_x - level.shown(first_x);
    for (std::size_t i = 0; i < shown.size(); ++i)
        shown[i] = row_[static_cast<std::size_t>(level.on_map(static_cast<int>(i) + offset))];
    return readable;
}

/// Reads a row of shown pixels, each the mean of four pixels of the image: two of each of two rows.
bool MapReader::read_mean_row(int shown_y, int first_shown_x, ZoomLevel level,
                              std::span<Pixel> shown) {
    const int half = level.step() / 2;
    const int y = level.on_map(shown_y);
    const int x = level.on_map(first_shown_x);
    const auto read_pairs = [&](int row, std::vector<Pixel>& pixels) {
        pixels.resize(2 * shown.size());
        const bool readable = read_row(row, x, half, pixels);
        if (pixels.back() == no_pixel) // beyond the right edge
            pixels.back() = pixels[pixels.size() - 2];
        return readable;
    };
    if (!read_pairs(y, row_))
        return false;
    const bool has_other = y + half < image_.size_.height() && read_pairs(y + half, other_row_);
    mean_of_four(row_, has_other ? other_row_ : row_, shown);
    return true;
}

void MapReader::read(const QRect& shown, ZoomLevel level, QImage& target) {
    for (int row = 0; row < shown.height(); ++row) {
        const int y = shown.top() + row;
        const auto pixels = row_of(target, row, shown.width());
        if (row > 0 && level.on_map(y) == level.on_map(y - 1)) {
            const auto above = row_of(target, row - 1, shown.width());
            std::copy(above.begin(), above.end(), pixels.begin());
            continue;
        }
        const bool readable = level.step() > 1
                                  ? read_mean_row(y, shown.left(), level, pixels)
                                  : read_enlarged_row(level.on_map(y), shown.left(), level, pixels);
        if (!readable)
            std::fill(pixels.begin(), pixels.end(), unreadable);
    }
}

void MapReader::read_samples(const QRect& shown, ZoomLevel level, QImage& target) {
    for (int row = 0; row < shown.height(); ++row) {
        const int y = shown.top() + row;
        const auto pixels = row_of(target, row, shown.width());
        if (row > 0 && level.on_map(y) == level.on_map(y - 1)) {
            const auto above = row_of(target, row - 1, shown.width());
            std::copy(above.begin(), above.end(), pixels.begin());
        } else {
            read_enlarged_row(level.on_map(y), shown.left(), level, pixels);
        }
    }
}

} // namespace map
