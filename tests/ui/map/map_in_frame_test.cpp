#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QTableView>

/// The map window within the main frame.
namespace {

class MapInFrame : public support::MainFrame {
  protected:
    MapInFrame() {
        // Provinces 1 to 9 from left to right, and a point of identifier 3000 in province 2.
        const auto identifiers = bitmaps::painted(900, 400, [](int x, int y) {
            return bitmaps::colour_of(x == 155 && y == 55 ? 3000 : x / 100 + 1);
        });
        session.maps.map_1_path = folder.write("1.bmp", identifiers);
        session.maps.id_map_path = folder.write("id.bmp", identifiers);
        folder.write("config.txt", "\"LAN\",\"english.lng\",0\r\n");
    }
    void start_with_maps() {
        start();
        frame->open_maps();
        QCoreApplication::processEvents();
    }
    QWidget& surface() const { return control<QWidget>("Picture1"); }
    void click_map(QPoint point, Qt::KeyboardModifiers keys = {}) const {
        QTest::mouseClick(&surface(), Qt::LeftButton, keys, point);
    }
    QString selection_text() const { return control<QLineEdit>("selection_text").text(); }
    QString focus() const {
        const auto* focused = QApplication::focusWidget();
        return focused == nullptr ? QString() : focused->objectName();
    }
    QPoint scrolled() const {
        return surface().mapTo(surface().parentWidget()->parentWidget(), QPoint(0, 0));
    }
};

TEST_F(MapInFrame, IdentifierAboveTheLastProvinceIsSelectedLikeATypedOne) {
    start_with_maps();
    click_map({250, 50});
    click_map({155, 55}, Qt::ControlModifier);
    EXPECT_EQ(selection_text(), "3;3000");
    EXPECT_EQ(session.selection.provinces().size(), 1U);
    EXPECT_EQ(boxes.take_one(),
              "run_time_error: Run-time error 9: Subscript out of range\nID map, point (155, 55), "
              "colour #506070, province 3000: an identifier up to 2018 was expected");
    click_map({155, 55});
    EXPECT_EQ(selection_text(), "3000");
    EXPECT_TRUE(session.selection.provinces().empty());
    EXPECT_NE(boxes.take_one().find("point (155, 55)"), std::string::npos);
    click_map({350, 50}, Qt::ControlModifier);
    EXPECT_EQ(boxes.take_one().find("point"), std::string::npos) << "it is not under this click";
    EXPECT_TRUE(application.ends.empty());
}

TEST_F(MapInFrame, TabLeavesTheMapWithoutScrollingIt) {
    start_with_maps();
    QTest::keyClick(&surface(), Qt::Key_End);
    click_map({890, 390});
    const QPoint corner = scrolled();
    EXPECT_EQ(focus(), "Picture1");
    QTest::keyClick(&surface(), Qt::Key_Tab);
    EXPECT_EQ(focus(), "selection_text");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), "Picture1");
    QTest::keyClick(&surface(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(control<QWidget>("panneau").isAncestorOf(QApplication::focusWidget()));
    EXPECT_NE(focus(), "selection_text") << "the panel's last control";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(focus(), "Picture1");
    EXPECT_EQ(scrolled(), corner);
    frame->enter_mode(map::Mode::ville);
    surface().setFocus();
    QTest::keyClick(&surface(), Qt::Key_Tab);
    EXPECT_EQ(focus(), "Picture1") << "nothing else is there";
    EXPECT_EQ(scrolled(), corner);
}

TEST_F(MapInFrame, MinimisedMapWindowComesBack) {
    start_with_maps();
    auto* window = frame->findChild<QMdiSubWindow*>();
    const QRect before = window->geometry();
    window->showMinimized();
    ASSERT_FALSE(surface().isVisible());
    choose("carte", "carte_1");
    EXPECT_TRUE(surface().isVisible());
    EXPECT_EQ(window->geometry(), before);
    window->showMinimized();
    QTest::keyClick(frame.get(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_TRUE(surface().isVisible());
    EXPECT_EQ(surface().width(), 1800);
}

TEST_F(MapInFrame, DrawingsGoOffWithTheirArt) {
    session.configuration.terrain_art_flag = 1;
    folder.write("config.txt", "\"GFX2\",\"c:\",1\r\n\"LAN\",\"english.lng\",0\r\n");
    start_with_maps();
    EXPECT_TRUE(action("dessin_graph").isEnabled() && action("dessin_graph").isChecked());
    session.configuration.terrain_art_flag = 0;
    frame->enter_mode(map::Mode::normal);
    EXPECT_FALSE(action("dessin_graph").isEnabled() || action("dessin_graph").isChecked());
}

TEST_F(MapInFrame, AnUnreadableIdMapIsTheReasonWhyNothingIsFound) {
    const std::string whole = folder.read("id.bmp");
    const auto notice = [this] { return control<QLabel>("notice").text(); };
    load(5, 28, "450");
    load(5, 29, "380");
    for (const bool is_indexed : {false, true}) {
        folder.write("id.bmp", whole);
        start();
        frame->open_maps();
        if (is_indexed) {
            press_key(Qt::Key_F3);
            press_key(Qt::Key_F9);
            EXPECT_EQ(notice(), "To be placed: 1");
        }
        folder.write("id.bmp", whole.substr(0, 1000));
        press_key(Qt::Key_K, Qt::ControlModifier);
        auto& list = control<QTableView>("problèmes");
        ASSERT_EQ(list.model()->rowCount(), 1);
        EXPECT_TRUE(
            list.model()->index(0, 3).data().toString().startsWith("places were not checked"));
        frame->tell({});
        if (is_indexed) {
            colour_by("colorer(3)");
        } else {
            press_key(Qt::Key_F3);
            press_key(Qt::Key_F9);
        }
        EXPECT_TRUE(notice().contains("id.bmp")) << is_indexed;
        frame.reset();
    }
}

} // namespace
