#include "support/map_window.h"

/// What pointing at the maps and clicking on them does.
namespace {

using namespace map_window;

TEST_F(Form1, ClickSelects) {
    struct Row {
        Qt::MouseButton button = Qt::NoButton;
        Qt::KeyboardModifiers keys;
        const char* clicked = "";
    };
    const Row rows[] = {
        {Qt::LeftButton, Qt::NoModifier, "14 "},
        {Qt::RightButton, Qt::NoModifier, "14 "},
        {Qt::MiddleButton, Qt::NoModifier, "14 "},
        {Qt::LeftButton, Qt::ControlModifier, "+14 "},
        {Qt::LeftButton, Qt::ShiftModifier, ""},
        {Qt::LeftButton, Qt::AltModifier, ""},
        {Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier, ""},
        {Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, ""},
    };
    open();
    form->show_map(map::ShownMap::map_2); // there is none
    EXPECT_TRUE(surface()->isVisible());
    for (const auto& row : rows) {
        clicked.clear();
        click({450, 150}, row.button, row.keys);
        EXPECT_EQ(clicked, row.clicked);
    }
    EXPECT_FALSE(session.provinces.has_unsaved_changes());
}

TEST_F(Form1, MoveNamesTheProvinceWhileNoButtonIsHeld) {
    session.maps.map_1_path = folder.write("1.bmp", plain_map(paper, width + 50));
    open({width + 50, height});
    QSignalSpy pointed(form.get(), &map::Form1::pointed);
    QTest::mouseMove(surface(), {250, 50});
    ASSERT_EQ(pointed.count(), 1);
    EXPECT_EQ(pointed.takeFirst().at(0).toInt(), 3);
    QTest::mousePress(surface(), Qt::LeftButton, {}, {250, 50});
    QTest::mouseMove(surface(), {350, 50});
    EXPECT_EQ(pointed.count(), 0) << "a button is held";
    QTest::mouseRelease(surface(), Qt::LeftButton, {}, {width + 10, 50});
    EXPECT_EQ(clicked, "") << "released outside the ID map";
    QTest::mouseMove(surface(), {width + 20, 50});
    EXPECT_EQ(pointed.count(), 0) << "outside the ID map";
}

TEST_F(Form1, EntersThePressForTheProvinceOfTheRelease) {
    session.mode = Mode::ville;
    session.maps.x_offset = 10.25;
    session.maps.y_offset = 5;
    open();
    QTest::mousePress(surface(), Qt::LeftButton, {}, {120, 45});
    QTest::mouseRelease(surface(), Qt::LeftButton, {}, {250, 50});
    EXPECT_EQ(city(3), "130.25,50");
    EXPECT_EQ(city(2), ",");
    EXPECT_EQ(clicked, "");
    click({250, 50}, Qt::MiddleButton);
    EXPECT_EQ(city(3), "130.25,50");
    click({250, 50}, Qt::RightButton);
    EXPECT_EQ(city(3), "-1,-1");
    click({310, 50});
    QTest::mouseDClick(surface(), Qt::LeftButton, {}, {320, 60});
    QTest::mouseRelease(surface(), Qt::LeftButton, {}, {320, 60});
    EXPECT_EQ(city(4), "330.25,65");
}

TEST_F(Form1, RoundsTheYOfThePress) {
    session.mode = Mode::ville;
    open();
    for (const auto& [y, stored] : {std::pair(10.5, "20.5,10"), std::pair(11.5, "20.5,12")}) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const QPointF point(20.5, y);
            QMouseEvent event(type, point, surface()->mapToGlobal(point), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(surface(), &event);
        }
        EXPECT_EQ(city(1), stored);
    }
}

} // namespace
