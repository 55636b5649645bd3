#include "map/strips.h"

#include <algorithm>
#include <future>
#include <vector>

namespace map {

namespace {

constexpr int least_height = 64; // shown pixels; a thread for less of them costs more than it saves
constexpr int most_strips = 4;   // at once: more would wait for the memory, not for processors
constexpr int piece_height = 32; // small enough to be drawn before the processor forgets it

struct ReadStrip {
    QRect shown;
    QImage image;
    std::optional<data::Place> problem;
};

std::vector<QRect> divided(const QRect& shown, int height) {
    std::vector<QRect> parts;
    for (int top = shown.top(); top <= shown.bottom(); top += height)
        parts.push_back(QRect(shown.left(), top, shown.width(), height) & shown);
    return parts;
}

ReadStrip read_strip(const QRect& shown, ZoomLevel level, StripReader& reader) {
    QImage image(shown.size(), QImage::Format_RGB32);
    for (const QRect& part : divided(shown, piece_height)) {
        QImage piece(image.scanLine(part.top() - shown.top()), part.width(), part.height(),
                     image.bytesPerLine(), image.format());
        reader.read(part, level, piece);
    }
    return {shown, image, reader.problem()};
}

} // namespace

std::optional<data::Place> read_strips(const QRect& shown, ZoomLevel level, int at_once,
                                       StripReader& first, const OpenStrip& open,
                                       const DrawPart& draw) {
    const int count =
        std::clamp(shown.height() / least_height, 1, std::clamp(at_once, 1, most_strips));
    const auto strips = divided(shown, (shown.height() + count - 1) / count);
    // Where no thread is to be had, a strip is read when it is asked for.
    constexpr auto if_possible = std::launch::async | std::launch::deferred;
    std::vector<std::future<ReadStrip>> others;
    for (auto strip = strips.begin() + 1; strip < strips.end(); ++strip)
        others.push_back(std::async(if_possible, [&open, level, strip = *strip] {
            return read_strip(strip, level, *open());
        }));
    QImage piece(shown.width(), piece_height, QImage::Format_RGB32);
    for (const QRect& part : divided(strips.front(), piece_height)) {
        first.read(part, level, piece);
        draw(part, piece);
    }
    auto problem = first.problem();
    for (auto& other : others) {
        ReadStrip read = other.get();
        draw(read.shown, read.image);
        if (!problem)
            problem = std::move(read.problem);
    }
    return problem;
}

} // namespace map
