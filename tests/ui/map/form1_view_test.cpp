#include "map/map_view.h"
#include "support/map_window.h"

#include <QScrollBar>

/// What the map window paints, reports and scrolls to.
namespace {

using namespace map_window;

TEST_F(Form1, RepaintsOnlyWhatThePointedProvinceChanges) {
    session.mode = Mode::ville;
    open();
    click({350, 250}); // province 22
    click({850, 650}); // province 63
    QTest::mouseMove(surface(), {10, 10});
    QCoreApplication::processEvents();
    const QImage before = seen();

    PaintedRegion painted(surface());
    QTest::mouseMove(surface(), {310, 210});
    QCoreApplication::processEvents();
    const QRect changed = painted.region.boundingRect();
    EXPECT_TRUE(painted.region.contains(QPoint(350, 250)));
    EXPECT_LT(changed.width(), 100);
    EXPECT_NE(seen().copy(changed), before.copy(changed));

    painted.region = {};
    QTest::mouseMove(surface(), {810, 610});
    QCoreApplication::processEvents();
    EXPECT_TRUE(painted.region.contains(QPoint(350, 250)));
    EXPECT_TRUE(painted.region.contains(QPoint(850, 650)));
    EXPECT_FALSE(painted.region.contains(QPoint(600, 450)));
}

TEST_F(Form1, DotsTheSelection) {
    open();
    session.selection.apply("1;12");
    form->selection_or_mode_changed();
    QImage image = seen();
    for (int y = 0; y < height; y += map::dot_spacing) {
        for (int x = 0; x < width; x += map::dot_spacing) {
            const int province = province_at(x, y);
            ASSERT_EQ(image.pixel(x, y), province == 1 || province == 12 ? 0xFF000000 : paper)
                << x << ' ' << y;
        }
    }
    for (const QPoint edge : {QPoint(-5, 0), QPoint(4, 0), QPoint(0, -5), QPoint(0, 4)}) {
        EXPECT_EQ(image.pixel(QPoint(40, 40) + edge), 0xFF000000) << "ten pixels wide and high";
        EXPECT_EQ(image.pixel(QPoint(40, 40) + edge * 3 / 2), paper);
    }
    EXPECT_EQ(image.pixel(44, 44), paper) << "round";

    // A view that cuts dots in two is painted as the whole is.
    const QRect part(33, 27, 71, 44);
    QImage cut(part.size(), QImage::Format_RGB32);
    surface()->render(&cut, {}, part, {});
    EXPECT_EQ(cut, image.copy(part));

    form->show_map(map::ShownMap::id_map);
    EXPECT_EQ(seen("Picture_id").pixel(20, 20), 0xFF000000);
    session.mode = Mode::ville;
    form->selection_or_mode_changed();
    EXPECT_EQ(seen("Picture_id").pixel(20, 20), 0xFF800000) << "in normal mode only";
    session.mode = Mode::normal;
    form->selection_or_mode_changed();
    EXPECT_EQ(seen("Picture_id").pixel(20, 20), 0xFF000000);
}

TEST_F(Form1, ForeignColourAtAPointOfTheGridIsReportedOnce) {
    folder.write("id.bmp", id_map(40, 60));
    support::MessageBoxes boxes;
    session.selection.apply("1");
    open();
    QTest::qWait(50);
    const std::string text = boxes.take_one();
    EXPECT_NE(text.find("point (40, 60), colour #506070, province 3000"), std::string::npos)
        << text;
    EXPECT_EQ(seen().pixel(40, 60), paper);
    EXPECT_EQ(seen().pixel(60, 60), 0xFF000000) << "the other dots are there";
    form->selection_or_mode_changed();
    QTest::qWait(50);
    EXPECT_EQ(boxes.take_one(), "none");
}

TEST_F(Form1, ForeignColourUnderAClickPlacesNothing) {
    folder.write("id.bmp", id_map(41, 61));
    open();
    support::MessageBoxes boxes;
    session.mode = Mode::ville;
    click({41, 61});
    const std::string text = boxes.take_one();
    EXPECT_NE(text.find("point (41, 61)"), std::string::npos) << text;
    EXPECT_FALSE(session.provinces.has_unsaved_changes());
    click({42, 61});
    EXPECT_EQ(city(1), "42,61");
    session.mode = Mode::normal;
    click({41, 61}, Qt::LeftButton, Qt::ShiftModifier);
    EXPECT_EQ(boxes.take_one(), "none") << "nothing was to be done";
    EXPECT_EQ(clicked, "");
}

TEST_F(Form1, OverflowOfYIsAnError) {
    const LeaksExpected leaks;
    session.mode = Mode::ville;
    session.maps.y_offset = 32700;
    open();
    click({10, 67});
    EXPECT_EQ(city(1), "10,32767");
    EXPECT_THROW(click({10, 68}), data::RunTimeError);
    EXPECT_EQ(city(1), "10,32767");
}

TEST_F(Form1, ScrollsByWheelAndKeyboard) {
    open({400, 300});
    EXPECT_EQ(corner(), QPoint(0, 0));
    const auto wheel = [this](Qt::KeyboardModifiers keys) {
        const QPointF point(50, 50);
        QWheelEvent event(point, surface()->mapToGlobal(point), {}, {0, -120}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // else it stays with the surface
        QApplication::instance()->notify(surface(), &event);
    };
    wheel(Qt::ShiftModifier);
    EXPECT_EQ(corner(), QPoint(120, 0)) << "sideways, three steps and no page";
    wheel({});
    EXPECT_EQ(corner().x(), 120);
    EXPECT_GT(corner().y(), 20);

    click({50, 150});
    struct Row {
        Qt::Key key;
        QPoint way; // sign of the movement
    };
    for (const Row row : {Row{Qt::Key_Down, {0, 1}}, Row{Qt::Key_Right, {1, 0}},
                          Row{Qt::Key_Up, {0, -1}}, Row{Qt::Key_Left, {-1, 0}},
                          Row{Qt::Key_PageDown, {0, 1}}, Row{Qt::Key_PageUp, {0, -1}}}) {
        const QPoint before = corner();
        QTest::keyClick(QApplication::focusWidget(), row.key);
        const QPoint moved = corner() - before;
        const auto sign = [](int way) { return (way > 0) - (way < 0); };
        EXPECT_EQ(QPoint(sign(moved.x()), sign(moved.y())), row.way) << row.key;
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
    EXPECT_GT(corner().x(), width - 400);
    EXPECT_GT(corner().y(), height - 300);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
    EXPECT_EQ(corner(), QPoint(0, 0));
}

TEST_F(Form1, IsPaintedOnceWhenItMovesAndChanges) {
    open({400, 300});
    PaintedRegion painted(surface());
    form->view().centre_on({300, 200});
    form->clear_graphique();
    QCoreApplication::processEvents();
    EXPECT_EQ(painted.times, 1);
    EXPECT_TRUE(painted.region.contains(QPoint(300, 200)));
}

TEST_F(Form1, TheScrollBarsLookLikeThoseOfTheProgram) {
    open({400, 300});
    form->view().centre_on({300, 200});
    for (QScrollBar* bar : {form->view().verticalScrollBar(), form->view().horizontalScrollBar()}) {
        ASSERT_NE(bar->style(), QApplication::style());
        const QImage banded = bar->grab().toImage();
        bar->setStyle(QApplication::style());
        const QImage whole = bar->grab().toImage();
        ASSERT_EQ(banded.size(), whole.size());
        int other = 0;
        for (int y = 0; y < whole.height(); ++y) {
            for (int x = 0; x < whole.width(); ++x)
                other += banded.pixel(x, y) != whole.pixel(x, y) ? 1 : 0;
        }
        const bool is_lying = bar->orientation() == Qt::Horizontal;
        EXPECT_LE(other, is_lying ? 4 : 0) << "but for the corners of a lying slider";
    }
}

TEST_F(Form1, MiddleDragScrollsAndIsNoClick) {
    open({400, 300});
    QTest::mousePress(surface(), Qt::MiddleButton, {}, {200, 150});
    QTest::mouseMove(surface(), {150, 130});
    EXPECT_EQ(corner(), QPoint(50, 20));
    QTest::mouseMove(surface(), {200, 150}); // the map has moved on below the pointer
    EXPECT_EQ(corner(), QPoint(50, 20)) << "the pointer is where it was on the screen";
    QTest::mouseRelease(surface(), Qt::MiddleButton, {}, {200, 150});
    EXPECT_EQ(clicked, "");
    click({250, 150}, Qt::MiddleButton);
    EXPECT_EQ(clicked, "12 ") << "a middle click without dragging is a click";
}

} // namespace
