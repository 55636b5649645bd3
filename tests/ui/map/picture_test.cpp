#include "map/map_image.h"
#include "map/picture.h"
#include "map/strips.h"
#include "support/bitmaps.h"
#include "support/folder.h"

#include <QRegion>

#include <gtest/gtest.h>
#include <utility>

namespace {

using map::ZoomLevel;

/// Returns the pixel that is shown at the point (shown pixels): a single one, or below level 1 the
/// mean of four, unless single ones are wanted.
QRgb expected(const QImage& whole, QPoint shown, ZoomLevel level, bool single) {
    const QPoint first(level.on_map(shown.x()), level.on_map(shown.y()));
    if (single || level.step() == 1)
        return whole.pixel(first);
    int sums[] = {0, 0, 0};
    for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
        QPoint point = first + QPoint(corner.x() * level.step() / 2, corner.y() * level.step());
        point.setX(point.x() < whole.width() ? point.x() : first.x());
        point.setY(point.y() < whole.height() ? point.y() : first.y());
        const QRgb pixel = whole.pixel(point);
        for (const auto& [sum, part] :
             {std::pair{0, qRed(pixel)}, {1, qGreen(pixel)}, {2, qBlue(pixel)}})
            sums[sum] += part;
    }
    return qRgb(sums[0] / 4, sums[1] / 4, sums[2] / 4);
}

TEST(Picture, PaintsEveryPixelOfWhatIsExposedAtEveryLevel) {
    const support::Folder folder;
    const map::MapImage image(folder.write("map.bmp", bitmaps::noise({50, 301})));
    QImage whole(image.size(), QImage::Format_RGB32);
    map::MapReader(image).read(whole.rect(), {}, whole);
    map::Picture picture(
        image, [](QPainter&, const QRegion&) {}, nullptr);
    for (int power = ZoomLevel::smallest; power <= ZoomLevel::largest; ++power) {
        const ZoomLevel level(power);
        picture.set_level(level);
        for (const QRect& area : {QRect(0, 0, 50, 301), QRect(3, 5, 40, 257), QRect(0, 31, 50, 1),
                                  QRect(7, 9, 9, 33), QRect(49, 299, 1, 1)}) {
            const QRect part =
                area.translated(power > 0 ? QPoint(1, 1) : QPoint()) & picture.rect();
            if (part.isEmpty())
                continue;
            QImage painted(part.size(), QImage::Format_RGB32);
            painted.fill(Qt::white);
            picture.render(&painted, {}, part, {});
            QImage samples(part.size(), QImage::Format_RGB32);
            map::MapReader(image).read_samples(part, level, samples);
            for (int y = 0; y < part.height(); ++y) {
                for (int x = 0; x < part.width(); ++x) {
                    const QPoint at = part.topLeft() + QPoint(x, y);
                    ASSERT_EQ(painted.pixel(x, y), expected(whole, at, level, false))
                        << power << ' ' << x << ' ' << y;
                    ASSERT_EQ(samples.pixel(x, y), expected(whole, at, level, true))
                        << power << ' ' << x << ' ' << y;
                }
            }
        }
    }
}

/// Cannot read what lies below row 150.
struct FaultyBelow : map::StripReader {
    void read(const QRect& shown, ZoomLevel, QImage& target) override {
        target.fill(static_cast<uint>(shown.top()));
        if (shown.bottom() > 150 && !reason)
            reason = data::Phrase(std::to_string(shown.top()));
    }
    const std::optional<data::Place>& problem() const override { return reason; }
    std::optional<data::Place> reason;
};

TEST(Strips, AreReadBySeveralThreadsWithoutAGap) {
    for (int at_once = 1; at_once <= 5; ++at_once) {
        FaultyBelow first;
        int drawn = 10;
        const auto problem = map::read_strips(
            {0, 10, 3, 300}, {}, at_once, first, [] { return std::make_unique<FaultyBelow>(); },
            [&](const QRect& shown, const QImage& image) {
                ASSERT_EQ(shown, QRect(0, drawn, 3, shown.height()));
                for (; drawn <= shown.bottom(); ++drawn) {
                    const int row =
                        static_cast<int>(image.pixel(2, drawn - shown.top()) & 0xFFFFFF);
                    ASSERT_TRUE(row <= drawn && row > drawn - 32) << drawn << ' ' << at_once;
                }
            });
        EXPECT_EQ(drawn, 310);
        ASSERT_TRUE(problem);
        EXPECT_LE(std::stoi(problem->in_english()), 151) << "the uppermost strip's";
    }
}

} // namespace
