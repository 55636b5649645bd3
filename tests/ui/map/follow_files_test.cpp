#include "map/map_view.h"
#include "support/map_window.h"

#include <QBuffer>
#include <QDateTime>

/// What the map window shows of files that other programs have changed.
namespace {

using namespace map_window;

constexpr QRgb grey = 0xFF808080;
constexpr QRgb slate = 0xFF405060;

class FollowFiles : public map_window::Form1 {
  protected:
    std::string png(QRgb colour, QSize size = {width, height}) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "PNG");
        return bytes.toStdString();
    }
    /// Opens map 1 with those bytes, zoomed and scrolled.
    void open_on(const std::string& map_1) {
        write("1.bmp", map_1);
        open({400, 300});
        form->view().set_level(map::ZoomLevel(1));
        form->view().centre_on({450, 350});
        QCoreApplication::processEvents();
        problems.clear();
        QObject::connect(form.get(), &map::Form1::problem,
                         [this](const QString& text) { problems += text; });
    }
    /// Writes the file at a time of its own.
    void write(const QString& name, const std::string& bytes) {
        folder.write(name, bytes);
        QFile file(folder.native(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        time = time.addSecs(10);
        ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
    }
    QRgb seen_in_middle() const {
        QCoreApplication::processEvents();
        const QImage image = form->view().viewport()->grab().toImage();
        return image.pixel(image.rect().center());
    }

    QDateTime time = QDateTime::currentDateTime();
    QStringList problems;
};

TEST_F(FollowFiles, AChangedMapIsShownAnewAtTheSamePlace) {
    struct Row {
        const char* what;
        std::string before;
        std::string after;
        QRgb seen;
        const char* problem;
    };
    const std::string plain = plain_map();
    const Row rows[] = {
        {"bitmap", plain, plain_map(slate), slate, ""},
        {"decoded", png(paper), png(slate), slate, ""},
        {"decoded, then a bitmap", png(paper), plain_map(slate), slate, ""},
        {"bitmap, then decoded", plain, png(slate), slate, ""},
        {"decoded, then cut short", png(paper), png(slate).substr(0, 40), paper, "1.bmp"},
        {"decoded, then no image", png(paper), "no image", paper, "image was expected"},
        {"bitmap, then no image", plain, "no image", grey, "no longer an uncompressed bitmap"},
        {"bitmap, then empty", plain, "", grey, "1.bmp"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        open_on(row.before);
        const QRect part = form->view().visible_part();
        write("1.bmp", row.after);
        form->follow_files();
        EXPECT_EQ(seen_in_middle(), row.seen);
        EXPECT_EQ(form->view().visible_part(), part);
        EXPECT_EQ(problems.isEmpty(), *row.problem == '\0') << problems.join('|').toStdString();
        EXPECT_TRUE(problems.join('|').contains(QLatin1String(row.problem)));
        write("1.bmp", row.before);
        form->follow_files();
        EXPECT_EQ(seen_in_middle(), paper) << "it can be read again";
    }
}

TEST_F(FollowFiles, AnotherSizeIsTaken) {
    open_on(plain_map());
    for (const QSize size : {QSize(1000, 900), QSize(1, 1), QSize(440, 340), QSize(900, 700)}) {
        write("1.bmp", bitmaps::painted(size.width(), size.height(),
                                        [](int, int) { return slate & 0xFFFFFFU; }));
        form->follow_files();
        EXPECT_EQ(surface()->size(), 2 * size);
        EXPECT_EQ(surface()->parentWidget()->size(), 2 * size) << "what scrolls";
        EXPECT_EQ(surface()->grab({0, 0, 1, 1}).toImage().pixel(0, 0), slate);
    }
    ASSERT_TRUE(QFile::remove(folder.native("1.bmp")));
    form->follow_files();
    EXPECT_EQ(seen_in_middle(), grey);
    EXPECT_TRUE(problems.join('|').contains(QStringLiteral("File not found")));
}

TEST_F(FollowFiles, AnIdMapThatComesBackUnchangedIsReadAgain) {
    open_on(plain_map());
    const QString file = folder.native("id.bmp");
    write("id.bmp", id_map());
    form->follow_files(); // the places are read anew
    ASSERT_TRUE(QFile::rename(file, file + "x"));
    EXPECT_EQ(form->places().index().place(1), nullptr);
    ASSERT_TRUE(QFile::rename(file + "x", file));
    form->follow_files();
    EXPECT_NE(form->places().index().place(1), nullptr);
    EXPECT_FALSE(form->places().problem());
}

TEST_F(FollowFiles, DotsAndClicksFollowTheIdMap) {
    open_on(plain_map());
    session.selection.apply("12");
    form->selection_or_mode_changed();
    EXPECT_EQ(seen_in_middle(), paper);
    EXPECT_NE(form->places().index().place(1), nullptr);
    write("id.bmp",
          bitmaps::painted(width, height, [](int, int) { return bitmaps::colour_of(12); }));
    form->follow_files();
    EXPECT_EQ(form->places().index().place(1), nullptr);
    form->view().centre_on({460, 360});
    EXPECT_EQ(seen_in_middle(), 0xFF000000);
    click(2 * QPoint(450, 350));
    EXPECT_EQ(clicked, "12 ");
}

TEST_F(FollowFiles, PreviewsFollowTheirFiles) {
    session.mode = Mode::ville;
    session.graphics.sprites.of(gfx::SpriteKind::ville).rows[0] = {folder.path("town.bmp"), "set",
                                                                   0, 0, 1};
    open_on(plain_map());
    click(2 * QPoint(450, 350));
    const QRgb marker = seen_in_middle();
    QImage town(20, 20, QImage::Format_RGB32);
    town.fill(slate);
    town.setPixel(0, 0, 0);
    ASSERT_TRUE(town.save(folder.native("town.bmp")));
    PaintedRegion painted(surface());
    form->follow_files();
    QCoreApplication::processEvents();
    EXPECT_TRUE(painted.region.contains(2 * QPoint(455, 355))) << "without a wish of anyone else";
    EXPECT_NE(seen_in_middle(), marker);
}

} // namespace
