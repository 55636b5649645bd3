#include "map/strips.h"

#include <QThread>

#include <algorithm>
#include <future>

namespace map {

namespace {

constexpr int least_height = 64; // shown pixels; a thread for less of them costs more than it saves
constexpr int most_strips = 4;   // at a time: more would wait for the memory, not for processors

} // namespace

std::vector<Strip> read_strips(const QRect& shown, ZoomLevel level,
                               const std::function<std::unique_ptr<StripReader>()>& open) {
    const int processors = std::clamp(QThread::idealThreadCount(), 1, most_strips);
    const int count = std::clamp(shown.height() / least_height, 1, processors);
    const int height = (shown.height() + count - 1) / count;
    const auto read_strip = [&](int index) {
        const QRect rectangle =
            QRect(shown.left(), shown.top() + index * height, shown.width(), height) & shown;
        Strip strip{rectangle, QImage(rectangle.size(), QImage::Format_RGB32), {}};
        const auto reader = open();
        reader->read(rectangle, level, strip.image);
        strip.problem = reader->problem();
        return strip;
    };
    std::vector<std::future<Strip>> others;
    for (int index = 1; index < count; ++index)
        others.push_back(std::async(read_strip, index));
    std::vector<Strip> strips;
    strips.push_back(read_strip(0));
    for (auto& other : others)
        strips.push_back(other.get());
    return strips;
}

} // namespace map
