#include "map/province_places.h"
#include "support/bitmaps.h"
#include "support/folder.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <string>

/// The index of the provinces while files and windows come and go.
namespace {

constexpr int width = 50;
constexpr int height = 200;

class ProvincePlaces : public testing::Test {
  protected:
    ProvincePlaces() {
        static const std::string bytes = stripes(1);
        path = folder.write("id.bmp", bytes);
        image = std::make_unique<map::MapImage>(path);
        places = std::make_unique<map::ProvincePlaces>(*image, std::chrono::milliseconds(0));
    }
    /// Returns a map of rows of 100 provinces from the first one on.
    static std::string stripes(int first) {
        return bitmaps::painted(width, height, [first](int, int y) {
            return bitmaps::colour_of(first + y / (height / 100));
        });
    }
    void begin() const {
        places->read_while_idle();
        QCoreApplication::processEvents();
        EXPECT_EQ(places->complete_index(), nullptr) << "a slice is not the whole";
        EXPECT_EQ(places->version(), 0U);
    }

    support::Folder folder;
    std::string path;
    std::unique_ptr<map::MapImage> image;
    std::unique_ptr<map::ProvincePlaces> places;
};

TEST_F(ProvincePlaces, AreReadInSlicesWhileIdle) {
    begin();
    QSignalSpy completed(places.get(), &map::ProvincePlaces::completed);
    EXPECT_TRUE(completed.wait());
    QTest::qWait(10);
    EXPECT_EQ(completed.size(), 1) << "and then no more";
    EXPECT_EQ(places->index().place(100)->box, (map::Box{0, 198, width - 1, 199}));

    const auto version = places->version();
    folder.write("id.bmp", stripes(201));
    places->restart();
    EXPECT_EQ(places->complete_index(), nullptr);
    EXPECT_EQ(places->index().place(300)->pixels, 2U * width);
    EXPECT_EQ(places->index().place(100), nullptr);
    EXPECT_NE(places->version(), version);
}

TEST_F(ProvincePlaces, TakeWhatAChangedFileStillHas) {
    const struct {
        const char* what;
        std::function<void(const QString&)> change;
    } rows[] = {{"shrinks", [](const QString& file) { QFile::resize(file, 54 + 100 * 152); }},
                {"vanishes", [](const QString& file) { QFile::remove(file); }},
                {"is replaced", [this](const QString&) {
                     folder.write("id.bmp", bitmaps::painted(9, 9, [](int, int) { return 0; }));
                 }}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        folder.write("id.bmp", stripes(1));
        places->restart();
        begin();
        row.change(folder.native("id.bmp"));
        EXPECT_NE(places->index().place(1), nullptr);
        EXPECT_EQ(places->index().place(100), nullptr);
        EXPECT_TRUE(places->problem());
    }
}

} // namespace
