#include "map/map_view.h"
#include "support/map_window.h"

/// The map window at other zoom levels than 1.
namespace {

using namespace map_window;
using map::ZoomLevel;

class Zoom : public map_window::Form1 {
  protected:
    map::MapView& view() const { return form->view(); }
    void set_power(int power) const {
        view().set_level(ZoomLevel(power));
        QCoreApplication::processEvents();
    }
    /// Returns where the surface shows the pixel; its last shown pixel above level 1.
    QPoint shown(QPoint pixel) const {
        const ZoomLevel level = view().level();
        const int last = level.enlargement() - 1;
        return {level.shown(pixel.x()) + last, level.shown(pixel.y()) + last};
    }
    /// Turns the wheel over a point of the surface; a notch are 120.
    void wheel(QPoint point, int turn, Qt::KeyboardModifiers keys = Qt::ControlModifier) const {
        QWheelEvent event(point, surface()->mapToGlobal(point), {}, {0, turn}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event); // else it stays with the surface
        QApplication::instance()->notify(surface(), &event);
    }
    /// Returns the part of the surface that is in the view, as it is seen.
    QImage in_view() const {
        return view().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    std::string maps_of(const std::string& map_1, const std::string& ids) {
        session.maps.map_1_path = folder.write("1.bmp", map_1);
        return session.maps.id_map_path = folder.write("id.bmp", ids);
    }
};

TEST_F(Zoom, APointIsThePixelUnderItAtEveryLevel) {
    session.mode = Mode::ville;
    open({400, 300});
    QSignalSpy pointed(form.get(), &map::Form1::pointed);
    for (int power = ZoomLevel::smallest; power <= ZoomLevel::largest; ++power) {
        SCOPED_TRACE(power);
        set_power(power);
        for (const QPoint pixel : {QPoint(32, 32), QPoint(288, 192), QPoint(864, 672)}) {
            view().centre_on(pixel);
            const int province = province_at(pixel.x(), pixel.y());
            QTest::mouseMove(surface(), shown(pixel) + QPoint(1, 0)); // or it would be no move
            QTest::mouseMove(surface(), shown(pixel));
            ASSERT_FALSE(pointed.empty());
            EXPECT_EQ(pointed.takeLast().at(1).toPointF(), QPointF(pixel));
            click(shown(pixel));
            EXPECT_EQ(city(province), std::to_string(pixel.x()) + "," + std::to_string(pixel.y()));
            EXPECT_TRUE(view().visible_part().contains(pixel));
            EXPECT_NE(in_view().pixel(surface()->mapTo(view().viewport(), shown(pixel))), paper)
                << "the marker";
            click(shown(pixel), Qt::RightButton);
        }
    }
    set_power(ZoomLevel::largest);
    view().centre_on({450, 350});
    EXPECT_EQ(view().visible_part().center(), QPoint(450, 350));
}

TEST_F(Zoom, CtrlAndWheelZoomAroundThePointer) {
    open({400, 300});
    view().centre_on({450, 350});
    QPoint point(480, 390);
    const QPoint on_screen = surface()->mapTo(form.get(), point);
    for (const auto& [turn, power] : {std::pair{120, 1},
                                      {60, 1},
                                      {50, 1},
                                      {15, 2},
                                      {-60, 2},
                                      {-60, 1},
                                      {-240, -1},
                                      {-30, -1},
                                      {30, -1},
                                      {120, 0}}) {
        wheel(surface()->mapFrom(form.get(), on_screen), turn);
        ASSERT_EQ(view().level(), ZoomLevel(power)) << turn;
        if (power >= 0) {
            const QPoint under = surface()->mapFrom(form.get(), on_screen);
            EXPECT_EQ(under / view().level().enlargement(), point);
        }
    }
    wheel(point, 120 * 20);
    EXPECT_TRUE(view().level().is_largest());
    wheel(point, 120, Qt::ControlModifier | Qt::ShiftModifier);
    wheel(point, -120 * 20);
    EXPECT_TRUE(view().level().is_smallest());
}

TEST_F(Zoom, TheWholeMapIsShownAtTheLargestLevelThatFits) {
    open({400, 300});
    for (const auto& [size, power] : {std::pair{QSize(450, 350), -1},
                                      {QSize(449, 350), -2},
                                      {QSize(450, 349), -2},
                                      {QSize(2000, 2000), 0},
                                      {QSize(900, 700), 0}}) {
        form->resize(size);
        view().set_level(ZoomLevel(3));
        view().show_whole_map();
        EXPECT_EQ(view().level(), ZoomLevel(power)) << size.width() << ' ' << size.height();
    }
    EXPECT_EQ(view().visible_part(), QRect(0, 0, width, height));
    form->resize(2000, 2000);
    EXPECT_EQ(view().visible_part(), QRect(0, 0, width, height)) << "there is no more of it";
}

TEST_F(Zoom, LevelAndPlaceSurviveAnotherMapAndMode) {
    open({400, 300});
    set_power(2);
    view().centre_on({450, 350});
    const QRect part = view().visible_part();
    surface()->setFocus();
    form->show_map(map::ShownMap::id_map);
    EXPECT_TRUE(surface("Picture_id")->hasFocus());
    session.mode = Mode::ville;
    form->selection_or_mode_changed();
    EXPECT_EQ(view().level(), ZoomLevel(2));
    EXPECT_EQ(view().visible_part(), part);
    EXPECT_EQ(surface("Picture_id")->size(), QSize(4 * width, 4 * height));
}

TEST_F(Zoom, ADragAndAPressGoOnAtAnotherLevel) {
    session.mode = Mode::ville;
    open({400, 300});
    view().centre_on({450, 350});
    const QPoint pointer = surface()->mapTo(view().viewport(), QPoint(450, 350));
    const auto move_to = [this](QPoint in_view) {
        QTest::mouseMove(surface(), surface()->mapFrom(view().viewport(), in_view));
    };
    QTest::mousePress(surface(), Qt::MiddleButton, {}, {450, 350});
    move_to(pointer - QPoint(20, 0));
    wheel(surface()->mapFrom(view().viewport(), pointer - QPoint(20, 0)), 120);
    const QPoint scrolled = corner();
    move_to(pointer - QPoint(30, 5));
    EXPECT_EQ(corner(), scrolled + QPoint(10, 5)) << "no jump, and as far as the pointer";
    QTest::mouseRelease(surface(), Qt::MiddleButton, {}, {900, 700});

    session.mode = Mode::port;
    QTest::mousePress(surface(), Qt::LeftButton, {}, 2 * QPoint(450, 350));
    set_power(-1);
    QTest::mouseRelease(surface(), Qt::LeftButton, {}, QPoint(450, 350) / 2);
    set_power(3);
    click(8 * QPoint(550, 350)); // its sea
    const auto cell = [&](int column) { return session.provinces.cell(32, {column}); };
    EXPECT_EQ(cell(31) + "," + cell(32), "450,350");
    EXPECT_EQ(cell(35), "33");
}

TEST_F(Zoom, DotsAreSeenAtEveryLevel) {
    open({400, 300});
    session.selection.apply("32"); // 400 to 499, 300 to 399
    form->selection_or_mode_changed();
    for (int power = ZoomLevel::smallest; power <= ZoomLevel::largest; ++power) {
        SCOPED_TRACE(power);
        set_power(power);
        view().centre_on({400, 300});
        const QPoint dot = surface()->mapTo(view().viewport(), shown({400, 300}));
        const QImage image = in_view();
        EXPECT_EQ(image.pixel(dot), 0xFF000000);
        int dark = 0;
        for (int x = 0; x < 10 * view().level().enlargement(); ++x)
            dark += image.pixel(dot.x() + x, dot.y()) != paper;
        EXPECT_LE(dark, 6 * view().level().enlargement()) << "the map is seen between the dots";
    }
}

TEST_F(Zoom, AMapAsWideAsTheyComeIsRightAtItsFarEnd) {
    constexpr int far = 18944;
    maps_of(bitmaps::painted(far, 20, [](int x, int) { return x / 100 * 37U; }),
            bitmaps::painted(far, 20, [](int x, int) { return bitmaps::colour_of(x / 10); }));
    open({400, 300});
    set_power(3);
    ASSERT_EQ(surface()->width(), 8 * far);
    QTest::keyClick(surface(), Qt::Key_End);
    EXPECT_EQ(view().visible_part().right(), far - 1);
    const QPoint point = surface()->mapFrom(view().viewport(), QPoint(300, 100));
    click(point);
    EXPECT_EQ(clicked, std::to_string(point.x() / 80) + " ");
    EXPECT_EQ(in_view().pixel(300, 100) & 0xFFFFFF, static_cast<QRgb>(point.x() / 800 * 37));
}

TEST_F(Zoom, FilesShrinkAndVanishWhileZoomed) {
    open({400, 300});
    set_power(-1);
    ASSERT_TRUE(QFile::resize(folder.native("1.bmp"), 54 + 201 * 2700));
    EXPECT_EQ(in_view().pixel(50, 100), paper) << "its second row alone is missing";
    EXPECT_EQ(in_view().pixel(50, 101), 0xFF808080);
    set_power(1);
    ASSERT_TRUE(QFile::remove(folder.native("1.bmp")));
    EXPECT_EQ(in_view().pixel(50, 100), 0xFF808080);
}

} // namespace
