#include "gfx/terrain_art.h"
#include "map/overlay_preview.h"
#include "support/folder.h"

#include <QDateTime>
#include <QFile>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

using data::FileColumn;
using gfx::SpriteKind;
using map::Mode;

constexpr QRgb ground = 0xFF808080;
constexpr QRgb key = 0xFFFF00FF; // the top left pixel's colour
constexpr QRgb red = 0xFFFF0000;
constexpr QRgb green = 0xFF00FF00;
constexpr QRgb blue = 0xFF0000FF;
constexpr QSize view(100, 80);

/// Returns a bitmap of the colour with a transparent row at its top.
QImage sprite(int width, int height, QRgb colour) {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    for (int x = 0; x < width; ++x)
        image.setPixel(x, 0, key);
    return image;
}

class OverlayPreviewTest : public testing::Test {
  protected:
    OverlayPreviewTest() {
        folder.make_folder("bmp");
        session.configuration.graphics_folder = folder.path();
        session.configuration.terrain_art_folder = folder.path();
        session.mode = Mode::ville;
        session.configuration.terrain_art_flag = 1;
        QObject::connect(&preview, &map::OverlayPreview::problem, [this](const QString& text) {
            if (!problems.contains(text))
                problems += text;
        });
    }

    void save(const QImage& image, const QString& name) {
        ASSERT_TRUE(image.save(folder.native(name), "BMP"));
    }

    void load_sprite(SpriteKind kind, const QString& name, std::int16_t origin_x,
                     std::int16_t origin_y, std::int16_t frames, std::size_t row = 0) {
        session.graphics.sprites.of(kind).rows[row] = {folder.path(name), "set", origin_x, origin_y,
                                                       frames};
    }

    void set(int province, FileColumn column, const char* text) {
        session.provinces.load(province, data::table_column(column), text);
    }

    void place(int province, FileColumn x_column, const char* x, const char* y) {
        set(province, x_column, x);
        set(province, {x_column.number + 1}, y);
    }

    /// Returns the ground with what the preview paints within the rectangle.
    QImage painted(const QRect& exposed = QRect({0, 0}, view), int pointed_province = -1) {
        QImage surface(view, QImage::Format_RGB32);
        surface.fill(ground);
        QPainter painter(&surface);
        painter.setClipRect(exposed);
        preview.ajout_graph(painter, exposed, level, pointed_province);
        return surface;
    }

    /// Returns the smallest rectangle that holds all that was painted over the ground.
    static QRect covered(const QImage& surface) {
        QRect all;
        for (int y = 0; y < surface.height(); ++y) {
            for (int x = 0; x < surface.width(); ++x) {
                if (surface.pixel(x, y) != ground)
                    all |= QRect(x, y, 1, 1);
            }
        }
        return all;
    }

    static QRect marker(int x, int y) { return {x - 6, y - 6, 13, 13}; }

    support::Folder folder;
    shell::Session session;
    map::OverlayPreview preview{session};
    map::ZoomLevel level;
    QStringList problems;
};

constexpr FileColumn city_x{29};
constexpr FileColumn army_x{31};
constexpr FileColumn port_x{33};
constexpr FileColumn manufactory_x{35};
constexpr FileColumn adjacency{37};
constexpr FileColumn drawing_1_x{38};
constexpr FileColumn drawing_4_x{47};
constexpr FileColumn terrain{14};

TEST_F(OverlayPreviewTest, SpriteStandsWithItsOriginOnThePosition) {
    QImage two_frames(12, 10, QImage::Format_RGB32);
    QPainter painter(&two_frames);
    painter.drawImage(0, 0, sprite(6, 10, red));
    painter.drawImage(6, 0, sprite(6, 10, blue));
    painter.end();
    save(two_frames, "town.bmp");
    load_sprite(SpriteKind::ville, "TOWN.BMP", 2, 7, 2); // letter case aside
    session.maps.x_offset = 1000.25;
    session.maps.y_offset = -5;
    place(1, city_x, "1050.25", "35");
    place(2018, city_x, "1070.25", "35");
    place(3, city_x, "-1", "-1");
    place(4, city_x, "", "");

    const QImage surface = painted();
    // The position is at (50, 40): the frame lies at (48, 33), its transparent row on top.
    EXPECT_EQ(covered(surface), QRect(48, 34, 26, 9));
    for (const QPoint& point : {QPoint(48, 34), QPoint(53, 42), QPoint(68, 34)})
        EXPECT_EQ(surface.pixel(point), red);
    EXPECT_EQ(surface.pixel(54, 40), ground); // the second frame is not drawn
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_TRUE(preview.bounds(1, {}).contains(QRect(48, 33, 6, 10)));
    EXPECT_TRUE(preview.bounds(3, {}).isEmpty());
    EXPECT_TRUE(preview.bounds(-1, {}).isEmpty());
}

TEST_F(OverlayPreviewTest, EveryModeShowsItsOwnKind) {
    struct Kind {
        Mode mode;
        SpriteKind kind;
        FileColumn x;
        QRgb colour;
    };
    constexpr Kind kinds[] = {{Mode::ville, SpriteKind::ville, city_x, red},
                              {Mode::armees, SpriteKind::armees, army_x, green},
                              {Mode::manuf, SpriteKind::manuf, manufactory_x, blue},
                              {Mode::port, SpriteKind::port, port_x, 0xFF00FFFF}};
    int x = 10;
    for (const auto& kind : kinds) {
        const QString name = QString::number(x);
        save(sprite(4, 4, kind.colour), name);
        load_sprite(kind.kind, name, 0, 0, 1, 1);
        session.graphics.previewed_row[kind.kind] = 1;
        place(7, kind.x, std::to_string(x).c_str(), "10");
        x += 10;
    }
    x = 10;
    for (const auto& kind : kinds) {
        session.mode = kind.mode;
        const QImage surface = painted();
        EXPECT_EQ(covered(surface), QRect(x, 11, 4, 3));
        EXPECT_EQ(surface.pixel(x, 11), kind.colour);
        x += 10;
    }
    session.mode = Mode::normal;
    EXPECT_TRUE(covered(painted()).isNull());
}

TEST_F(OverlayPreviewTest, PaintingInTilesIsPaintingAtOnce) {
    save(sprite(30, 20, red), "port.bmp");
    save(sprite(50, 31, green), "marsh2.bmp");
    set(1, adjacency, "1999");
    set(1, terrain, "4");
    set(1, {40}, "2");
    for (const Mode mode : {Mode::port, Mode::dessin}) {
        session.mode = mode;
        for (const std::int16_t origin :
             std::initializer_list<std::int16_t>{-30, 5, 60}) { // outside of the picture, too
            load_sprite(SpriteKind::port, "port.bmp", origin, origin, 1);
            place(1, port_x, "50", "40");
            place(1, drawing_1_x, "50", "40");
            const QImage whole = painted(QRect({0, 0}, view), 1);
            QImage tiled(view, QImage::Format_RGB32);
            QPainter painter(&tiled);
            constexpr int step = 10;
            for (int y = 0; y < view.height(); y += step) {
                for (int x = 0; x < view.width(); x += step) {
                    const QRect tile(x, y, step, step);
                    painter.drawImage(tile, painted(tile, 1), tile);
                }
            }
            painter.end();
            EXPECT_FALSE(covered(whole).isEmpty());
            EXPECT_EQ(tiled, whole) << origin;
        }
    }
}

TEST_F(OverlayPreviewTest, FrameCountsOutOfReason) {
    save(sprite(6, 4, red), "b.bmp");
    place(1, city_x, "20", "20");
    constexpr std::pair<std::int16_t, int> widths[] = {{0, 6}, {-3, 6}, {1, 6},    {2, 3},
                                                       {4, 1}, {6, 1},  {32767, 1}};
    for (const auto& [frames, width] : widths) {
        load_sprite(SpriteKind::ville, "b.bmp", 0, 0, frames);
        EXPECT_EQ(covered(painted()), QRect(20, 21, width, 3)) << frames;
    }
}

TEST_F(OverlayPreviewTest, MarkerStaysWithoutAPictureAndSaysWhy) {
    place(1, city_x, "20", "20");
    place(2, city_x, "60", "20");
    EXPECT_EQ(covered(painted()), marker(20, 20) | marker(60, 20));
    painted();
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("no sprite set")) << problems[0].toStdString();

    folder.write("text.bmp");
    save(sprite(6, 1, red), "transparent.bmp");
    save(sprite(6, 4, red), "short.bmp");
    ASSERT_TRUE(QFile::resize(folder.native("short.bmp"), 54 + 3 * 24));
    for (const char* name : {"missing.bmp", "text.bmp", "bmp", "transparent.bmp", "short.bmp"}) {
        problems.clear();
        load_sprite(SpriteKind::ville, name, 3, 3, 1);
        EXPECT_EQ(covered(painted()), marker(20, 20) | marker(60, 20)) << name;
        painted();
        ASSERT_EQ(problems.size(), 1) << name;
        EXPECT_TRUE(problems[0].contains(name)) << problems[0].toStdString();
    }
}

TEST_F(OverlayPreviewTest, BitmapIsReadAgainWhenItsFileChanges) {
    load_sprite(SpriteKind::ville, "b.bmp", 0, 0, 1);
    place(1, city_x, "20", "20");
    EXPECT_EQ(covered(painted()), marker(20, 20));

    save(sprite(4, 4, red), "b.bmp");
    EXPECT_EQ(painted().pixel(20, 21), red);
    save(sprite(4, 4, green), "b.bmp"); // as long as before: only the time tells
    QFile file(folder.native("b.bmp"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(5), QFileDevice::FileModificationTime);
    file.close();
    EXPECT_EQ(painted().pixel(20, 21), green);

    QFile::remove(file.fileName());
    EXPECT_EQ(covered(painted()), marker(20, 20));
}

TEST_F(OverlayPreviewTest, FilesAreLookedAtOncePerPainting) {
    load_sprite(SpriteKind::ville, "b.bmp", 0, 0, 1);
    place(1, city_x, "20", "20");
    place(2, city_x, "60", "60");
    // The file comes into being between the two rectangles of one painting.
    QObject::connect(&preview, &map::OverlayPreview::problem,
                     [&] { save(sprite(4, 4, red), "b.bmp"); });
    QImage surface(view, QImage::Format_RGB32);
    surface.fill(ground);
    QPainter painter(&surface);
    preview.ajout_graph(painter, QRegion(0, 0, 40, 40) + QRegion(40, 40, 40, 40), {}, -1);
    painter.end();
    EXPECT_EQ(covered(surface), marker(20, 20) | marker(60, 60));
    EXPECT_EQ(painted().pixel(60, 61), red);
}

TEST_F(OverlayPreviewTest, PointedProvinceIsOutlinedWithinItsBounds) {
    save(sprite(4, 4, red), "b.bmp");
    load_sprite(SpriteKind::ville, "b.bmp", 0, 0, 1);
    place(1, city_x, "20", "20");
    place(2, city_x, "60", "20");
    const QImage plain = painted();
    const QImage pointed = painted(QRect({0, 0}, view), 1);
    EXPECT_EQ(pointed.copy(50, 0, 50, 80), plain.copy(50, 0, 50, 80)); // the other one stays
    EXPECT_EQ(pointed.copy(20, 20, 4, 4), plain.copy(20, 20, 4, 4));
    const QRect outlined = covered(pointed.copy(0, 0, 50, 80));
    EXPECT_TRUE(outlined.contains(QRect(19, 19, 6, 6)));
    EXPECT_EQ(preview.bounds(1, {}), outlined); // what is repainted when the pointer moves on
}

TEST_F(OverlayPreviewTest, GraphicsGrowAndShrinkWithTheMapButCanBeSeen) {
    save(sprite(20, 40, red), "b.bmp"); // its top row is transparent
    load_sprite(SpriteKind::ville, "b.bmp", 10, 40, 1);
    const struct {
        int power;
        const char* x; // so that the position is shown at (50, 60)
        const char* y;
        QRect picture;
    } rows[] = {{1, "25", "30", {30, -18, 40, 78}},
                {0, "50", "60", {40, 21, 20, 39}},
                {-1, "100", "120", {45, 40, 10, 20}},
                {-2, "200", "240", {47, 50, 5, 10}},
                {-5, "1600", "1920", {48, 52, 4, 8}}};
    for (const auto& row : rows) {
        level = map::ZoomLevel(row.power);
        place(1, city_x, row.x, row.y);
        EXPECT_EQ(covered(painted()), row.picture & QRect({0, 0}, view)) << row.power;
        EXPECT_TRUE(preview.bounds(1, level).contains(row.picture)) << row.power;
        const QRect edge(row.picture.right(), 0, 5, view.height());
        EXPECT_FALSE(covered(painted(edge)).isEmpty()) << row.power << ", reaching into a part";
    }
}

TEST_F(OverlayPreviewTest, PortShowsItsSeaAndThatItWaitsForOne) {
    session.mode = Mode::port;
    place(1, port_x, "20", "20");
    place(2, port_x, "20", "50");
    set(2, adjacency, "0");
    const QImage without_sea = painted();
    EXPECT_EQ(covered(without_sea), marker(20, 20) | marker(20, 50));

    set(1, adjacency, "1234");
    const QImage with_sea = painted();
    const QRect label = covered(with_sea.copy(27, 0, 73, 80)).translated(27, 0);
    EXPECT_TRUE(label.top() > 10 && label.bottom() < 30 && label.width() > 15);
    EXPECT_TRUE(preview.bounds(1, {}).contains(label));
    // The port's label alone reaches into this rectangle.
    const QRect strip(label.right() - 3, 0, 10, 80);
    EXPECT_EQ(covered(painted(strip)), label & strip);

    session.port_placement = {1, 2};
    EXPECT_EQ(painted().copy(0, 0, 100, 35), with_sea.copy(0, 0, 100, 35));
    EXPECT_TRUE(covered(painted()).contains(marker(20, 50).adjusted(-1, -1, 1, 1)));
    session.port_placement.stage = 0;
    EXPECT_EQ(painted(), with_sea);
    level = map::ZoomLevel(-2);
    EXPECT_LT(covered(painted()).width(), 15) << "no room for the seas of all ports";
}

TEST_F(OverlayPreviewTest, DrawingsAreCentredOnTheirPositions) {
    session.mode = Mode::dessin;
    save(sprite(10, 6, red), "forest3.bmp");
    save(sprite(5, 5, blue), "forest0.bmp");
    set(1, terrain, "1");
    place(1, drawing_1_x, "20", "20");
    set(1, {40}, "3");
    place(1, drawing_4_x, "60", "20");
    set(1, {49}, "0");

    const QImage surface = painted();
    EXPECT_EQ(covered(surface.copy(0, 0, 40, 80)), QRect(15, 18, 10, 5));
    EXPECT_EQ(surface.pixel(15, 18), red);
    EXPECT_EQ(covered(surface.copy(40, 0, 60, 80)), QRect(18, 19, 5, 4));
    EXPECT_EQ(surface.pixel(58, 19), blue);
    EXPECT_TRUE(problems.isEmpty());
    EXPECT_FALSE(covered(painted(QRect(24, 0, 1, 80))).isEmpty()); // reaches in from outside

    session.graphics.shows_drawings = false;
    EXPECT_EQ(covered(painted()), marker(20, 20) | marker(60, 20));
    EXPECT_TRUE(problems.isEmpty());

    session.graphics.shows_drawings = true;
    session.configuration.terrain_art_flag = 0; // the folder turned out to be incomplete
    EXPECT_EQ(covered(painted()), marker(20, 20) | marker(60, 20));
    EXPECT_EQ(problems.size(), 1);
    problems.clear();

    session.configuration.terrain_art_flag = 1;
    set(1, {40}, "5"); // there is no such file
    EXPECT_EQ(covered(painted().copy(0, 0, 40, 80)), marker(20, 20));
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("forest5.bmp"));
}

} // namespace
