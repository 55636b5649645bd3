#include "support/map_window.h"

#include <QPainter>

/// What the map window says about a map or a picture that it cannot show, and what it paints anew.
namespace {

using namespace map_window;

class Form1Reasons : public map_window::Form1 {
  protected:
    void open_and_listen() {
        open();
        QObject::connect(form.get(), &map::Form1::problem,
                         [this](const QString& reason) { reasons += reason; });
    }
    QString take() {
        seen();
        return std::exchange(reasons, {}).join('|');
    }
    QStringList reasons;
};

TEST_F(Form1Reasons, GreyMapSaysWhyOnceUntilSomethingChanges) {
    open_and_listen();
    EXPECT_EQ(take(), "");
    const auto png = [] {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(paper);
        return image;
    }();
    ASSERT_TRUE(png.save(folder.native("1.bmp"), "PNG"));
    EXPECT_TRUE(take().endsWith("1.bmp: the file is no longer an uncompressed bitmap, as it was "
                                "when the maps were opened"));
    EXPECT_EQ(take(), "") << "told already";
    form->selection_or_mode_changed();
    EXPECT_NE(take(), "");

    folder.write("1.bmp", plain_map(paper, width - 1));
    EXPECT_TRUE(take().endsWith("the bitmap has 899 x 700 pixels now, 900 x 700 were expected"));
    folder.write("1.bmp", plain_map());
    ASSERT_TRUE(QFile::resize(folder.native("1.bmp"), 54 + 10 * 2700));
    EXPECT_TRUE(take().endsWith("the file ends before the pixels of row 10"));
    folder.write("1.bmp", "BM");
    EXPECT_TRUE(take().endsWith("the file ends inside the bitmap header"));

    folder.write("1.bmp", plain_map());
    EXPECT_EQ(take(), "");
    ASSERT_TRUE(QFile::remove(folder.native("id.bmp")));
    click({450, 350});
    EXPECT_TRUE(take().contains("id.bmp: ")) << "the ID map is not shown, but asked";
    EXPECT_EQ(clicked, "");
}

TEST_F(Form1Reasons, MissingPictureIsToldAgainForAnotherModeOrSet) {
    session.mode = Mode::ville;
    open_and_listen();
    click({350, 250});
    click({550, 250});
    EXPECT_EQ(take().count("no sprite set"), 1);
    form->clear_graphique();
    EXPECT_EQ(take(), "");
    form->graphics_changed();
    EXPECT_EQ(take().count("no sprite set"), 1);
    form->selection_or_mode_changed();
    EXPECT_EQ(take().count("no sprite set"), 1);
}

TEST_F(Form1Reasons, OnlyThePortsFirstClickRepaintsNoMoreThanItPlaced) {
    open();
    struct Row {
        Mode mode;
        Qt::MouseButton button;
        bool all;
    };
    for (const Row row :
         {Row{Mode::ville, Qt::LeftButton, true}, Row{Mode::ville, Qt::RightButton, true},
          Row{Mode::port, Qt::LeftButton, false}, Row{Mode::port, Qt::LeftButton, true},
          Row{Mode::port, Qt::LeftButton, false}, Row{Mode::port, Qt::RightButton, true}}) {
        session.mode = row.mode;
        form->selection_or_mode_changed();
        QTest::mouseMove(surface(), {350, 250});
        QCoreApplication::processEvents();
        PaintedRegion painted(surface());
        click({350, 250}, row.button);
        QCoreApplication::processEvents();
        EXPECT_TRUE(painted.region.contains(QPoint(350, 250)));
        EXPECT_EQ(painted.region.contains(QPoint(10, 10)), row.all) << static_cast<int>(row.mode);
    }
}

} // namespace
