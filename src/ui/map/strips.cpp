#include "map/strips.h"

#include <algorithm>
#include <future>
#include <vector>

namespace map {

namespace {

constexpr int least_height = 64; // shown pixels; a thread for less of them costs more than it saves
constexpr int most_strips = 4;   // at once: more would wait for the memory, not for processors
constexpr int piece_height = 32; // what a reader needs beside the image stays small

} // namespace

ShownPart read_strips(const QRect& shown, ZoomLevel level, int at_once, StripReader& first,
                      const std::function<std::unique_ptr<StripReader>()>& open) {
    ShownPart part{QImage(shown.size(), QImage::Format_RGB32), {}};
    uchar* const pixels = part.image.bits();
    const qsizetype row_size = part.image.bytesPerLine();
    const int count =
        std::clamp(shown.height() / least_height, 1, std::clamp(at_once, 1, most_strips));
    const int height = (shown.height() + count - 1) / count;
    const auto read_strip = [&](int index, StripReader& reader) {
        const int end = std::min((index + 1) * height, shown.height());
        for (int top = index * height; top < end; top += piece_height) {
            const QSize size(shown.width(), std::min(piece_height, end - top));
            QImage piece(pixels + top * row_size, size.width(), size.height(), row_size,
                         QImage::Format_RGB32);
            reader.read({shown.topLeft() + QPoint(0, top), size}, level, piece);
        }
        return reader.problem();
    };
    // Where no thread is to be had, a strip is read when it is asked for.
    constexpr auto if_possible = std::launch::async | std::launch::deferred;
    std::vector<std::future<std::optional<data::Place>>> others;
    for (int index = 1; index < count; ++index)
        others.push_back(
            std::async(if_possible, [&, index] { return read_strip(index, *open()); }));
    part.problem = read_strip(0, first);
    for (auto& other : others) {
        auto problem = other.get();
        if (!part.problem)
            part.problem = std::move(problem);
    }
    return part;
}

} // namespace map
