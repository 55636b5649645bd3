#include "map/map_image.h"
#include "map/picture.h"
#include "support/bitmaps.h"
#include "support/folder.h"

#include <QRegion>

#include <gtest/gtest.h>

namespace {

TEST(Picture, PaintsEveryRowOfWhatIsExposed) {
    const support::Folder folder;
    const map::MapImage image(folder.write("map.bmp", bitmaps::noise({50, 100})));
    QImage whole(image.size(), QImage::Format_RGB32);
    map::MapReader(image).read(whole.rect(), {}, whole);
    map::Picture picture(
        image, [](QPainter&, const QRegion&) {}, nullptr);
    for (const QRect& part : {QRect(0, 0, 50, 100), QRect(3, 5, 40, 64), QRect(0, 31, 50, 1),
                              QRect(7, 9, 9, 33), QRect(49, 99, 1, 1)}) {
        QImage painted(part.size(), QImage::Format_RGB32);
        painted.fill(Qt::white);
        picture.render(&painted, {}, part, {});
        EXPECT_EQ(painted, whole.copy(part)) << part.top() << ' ' << part.height();
    }
}

} // namespace
