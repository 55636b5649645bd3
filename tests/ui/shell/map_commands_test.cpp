#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTreeWidget>

/// The maps, the modes and the map window, commanded through the main frame's menus and keys.
namespace {

constexpr int width = 200;
constexpr int height = 120;
constexpr QRgb paper = 0xFFE0D0C0;
constexpr QRgb slate = 0xFF405060;

constexpr const char* map_items[] = {"carte_1", "carte_2", "carte_id"};
constexpr const char* surfaces[] = {"Picture1", "Picture2", "Picture_id"};

class MapCommands : public support::MainFrame {
  protected:
    /// Writes the maps: provinces 5 and 6 share them, left and right.
    MapCommands() {
        folder.write("relief.bmp", plain(paper));
        folder.write("political.bmp", plain(slate));
        folder.write("ids.bmp", bitmaps::painted(width, height, [](int x, int) {
                         return bitmaps::colour_of(x < width / 2 ? 5 : 6);
                     }));
    }
    /// A later run: config.txt is there, so that every mode can be entered.
    void start_again() {
        folder.write("config.txt", "\"LAN\",\"english.lng\",0\r\n");
        start();
    }

    static std::string plain(QRgb colour, int map_width = width, int map_height = height) {
        return bitmaps::painted(map_width, map_height, [=](int, int) { return colour & 0xFFFFFF; });
    }

    void open_maps() { MainFrame::open_maps("relief.bmp", "political.bmp", "ids.bmp"); }

    QWidget* map_window() const { return frame->findChild<QWidget*>("Form1"); }
    QMdiSubWindow& map_frame() const {
        const auto windows = control<QMdiArea>("mdi_area").subWindowList();
        EXPECT_EQ(windows.size(), 1);
        return *windows.constFirst();
    }
    /// Returns the indices of the maps that are checked in the menu and of those that are seen.
    std::string maps_shown() const {
        std::string checked;
        std::string visible;
        for (int i = 0; i < 3; ++i) {
            if (action(map_items[i]).isChecked())
                checked += std::to_string(i);
            if (const auto* surface = frame->findChild<QWidget*>(surfaces[i]))
                visible += surface->isVisible() ? std::to_string(i) : "";
        }
        return checked + " " + visible;
    }
    /// Returns the colour of the map's point in the frame as it is seen.
    QRgb seen(QPoint point, const char* surface = "Picture1") const {
        return frame->grab().toImage().pixel(control<QWidget>(surface).mapTo(frame.get(), point));
    }
    std::string status_text() const { return base::to_bytes(control<QLabel>("Bar(1)").text()); }
    void click_map(QPoint point, const char* surface = "Picture1") const {
        QTest::mouseClick(&control<QWidget>(surface), Qt::LeftButton, {}, point);
        QCoreApplication::processEvents();
    }
    QString selection_text() const { return control<QLineEdit>("selection_text").text(); }
};

TEST_F(MapCommands, MapsAreOpenedAndChosen) {
    start();
    EXPECT_TRUE(control<QWidget>("panneau").isVisible());
    press_key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(map_window(), nullptr) << "there are no maps yet";
    open_maps();
    ASSERT_NE(map_window(), nullptr);
    EXPECT_EQ(maps_shown(), "0 0");
    EXPECT_EQ(seen({50, 50}), paper);
    EXPECT_EQ(map_frame().windowTitle(), "relief.bmp");

    choose("carte", "carte_2");
    EXPECT_EQ(maps_shown(), "1 1");
    EXPECT_EQ(seen({50, 50}, "Picture2"), slate);
    EXPECT_EQ(map_frame().windowTitle(), "political.bmp");
    click_map({150, 50}, "Picture2");
    EXPECT_EQ(selection_text(), "6") << "the ID map tells, whatever is shown";
    press_key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(maps_shown(), "2 2");
    EXPECT_EQ(seen({150, 50}, "Picture_id") & 0xFFFFFF, bitmaps::colour_of(6));
    click_map({50, 50}, "Picture_id");
    EXPECT_EQ(selection_text(), "5");
    choose("carte", "carte_id");
    EXPECT_EQ(maps_shown(), "2 2") << "the shown map stays checked";
    choose("carte", "carte_1");
    EXPECT_EQ(maps_shown(), "0 0");

    press_key(Qt::Key_3, Qt::ControlModifier);
    open_maps();
    EXPECT_EQ(maps_shown(), "0 0") << "the window opens on map 1";
    in_dialog("Form2", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QWidget* before = map_window();
    choose("fichier", "ouvrir_cartes");
    EXPECT_EQ(map_window(), before) << "cancelled";
}

TEST_F(MapCommands, ZoomItemsAndTheirKeys) {
    start_again();
    const char* items[] = {"zoom_plus", "zoom_moins", "zoom_1", "zoom_tout"};
    for (const auto* item : items)
        EXPECT_FALSE(action(item).isEnabled()) << item << ", without maps";
    open_maps();
    const auto& map = control<QWidget>("Picture1");
    const auto expect = [&](int shown_width, const std::string& enabled) {
        EXPECT_EQ(map.width(), shown_width);
        std::string found;
        for (const auto* item : items)
            found += action(item).isEnabled() ? '1' : '0';
        EXPECT_EQ(found, enabled) << shown_width;
    };
    expect(width, "1111");
    press_key(Qt::Key_Plus, Qt::ControlModifier);
    expect(2 * width, "1111");
    press_key(Qt::Key_Equal, Qt::ControlModifier);
    choose("carte", "zoom_plus");
    expect(8 * width, "0111");
    choose("carte", "carte_2");
    press_key(Qt::Key_F3);
    expect(8 * width, "0111");
    press_key(Qt::Key_0, Qt::ControlModifier);
    expect(width, "1111");
    for (int i = 0; i < 5; ++i)
        press_key(Qt::Key_Minus, Qt::ControlModifier);
    expect(7, "1011");
    press_key(Qt::Key_9, Qt::ControlModifier);
    expect(width, "1111");
    choose("carte", "zoom_moins");
    choose("carte", "zoom_1");
    expect(width, "1111");
    press_key(Qt::Key_Minus, Qt::ControlModifier);
    open_maps();
    EXPECT_EQ(control<QWidget>("Picture1").width(), width) << "opened maps begin at level 1";
}

TEST_F(MapCommands, AMapThatWasChangedMeanwhileIsShownOnActivation) {
    start();
    open_maps();
    choose("carte", "zoom_plus");
    folder.write("relief.bmp", plain(slate, width + 1));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(control<QWidget>("Picture1").width(), 2 * width);
    come_back();
    QCoreApplication::processEvents();
    EXPECT_EQ(control<QWidget>("Picture1").width(), 2 * width + 2);

    choose("recherche", "trouver"); // one comes back to a dialog as well
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    folder.write("relief.bmp", plain(slate, width));
    auto& search = control<QDialog>("Form_recherche");
    search.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&search));
    QCoreApplication::processEvents();
    EXPECT_EQ(control<QWidget>("Picture1").width(), 2 * width);
}

TEST_F(MapCommands, AClosedMapWindowIsMadeAnew) {
    start_again();
    open_maps();
    choose("carte", "carte_2");
    const std::pair<Qt::Key, Qt::KeyboardModifiers> commands[] = {
        {Qt::Key_2, Qt::ControlModifier}, {Qt::Key_F3, {}}, {Qt::Key_F2, {}}};
    for (const auto& [key, keys] : commands) {
        for (int times = 0; times < 3; ++times)
            press_key(Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_FALSE(action("zoom_plus").isEnabled());
        map_frame().close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(map_window(), nullptr);
        press_key(key, keys);
        ASSERT_NE(map_window(), nullptr) << key;
        EXPECT_TRUE(map_window()->isVisible()) << key;
        EXPECT_TRUE(action("zoom_plus").isEnabled()) << "it begins at level 1";
    }
    click_map({150, 50});
    EXPECT_EQ(selection_text(), "6");
    map_frame().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    select("5");
    EXPECT_EQ(map_window(), nullptr) << "a selection does not bring it back";
}

TEST_F(MapCommands, TheMapWindowFitsUntilItIsMoved) {
    folder.write("large.bmp", plain(paper, 1000, 800));
    start();
    MainFrame::open_maps("large.bmp", "", "large.bmp");
    const auto room = [this] { return control<QMdiArea>("mdi_area").viewport()->size(); };
    const auto resize_frame = [this](QSize size) {
        frame->resize(size);
        QCoreApplication::processEvents();
    };
    EXPECT_EQ(map_frame().size(), room());
    resize_frame({1200, 650});
    EXPECT_EQ(map_frame().geometry(), QRect({0, 0}, room()));
    const QRect moved(30, 40, 300, 200);
    map_frame().setGeometry(moved);
    resize_frame({1250, 700});
    EXPECT_EQ(map_frame().geometry(), moved);
}

TEST_F(MapCommands, ModesShowAndEnterTheirPositions) {
    start_again();
    open_maps();
    const struct {
        const char* item;
        Qt::Key key;
        int status_text;
        int x_field; // 0: clicks select
    } rows[] = {{"ville_menu", Qt::Key_F3, 3, 28},  {"armées_menu", Qt::Key_F4, 4, 30},
                {"port_menu", Qt::Key_F5, 2, 32},   {"manuf_menu", Qt::Key_F6, 5, 34},
                {"dessin_menu", Qt::Key_F7, 6, 37}, {"normal", Qt::Key_F2, 1, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.item);
        press_key(row.key);
        EXPECT_EQ(status_text(), session.language.status(row.status_text));
        for (const auto& other : rows)
            EXPECT_EQ(action(other.item).isChecked(), other.item == row.item) << other.item;
        EXPECT_EQ(control<QWidget>("panneau").isVisible(), row.x_field == 0);
        EXPECT_EQ(seen({50, 60}), paper) << "what another mode placed is not shown";
        click_map({50, 60});
        if (row.x_field != 0) {
            EXPECT_EQ(cell(5, row.x_field) + "," + cell(5, row.x_field + 1), "50,60");
            EXPECT_NE(seen({50, 60}), paper) << "the position is shown at once";
        }
    }
    EXPECT_EQ(selection_text(), "5");
    EXPECT_EQ(control<QLabel>("ville(0)").text(), "50") << "the panel shows what was placed";
    EXPECT_EQ(seen({20, 20}), 0xFF000000) << "a dot of the selection";

    choose("mode", "normal");
    EXPECT_TRUE(action("normal").isChecked()) << "chosen again, it stays";
}

TEST_F(MapCommands, AModeThatHidesThePanelLeavesNoField) {
    start_again();
    open_maps();
    load(5, 1, "a");
    load(6, 1, "b");
    select("5;6");
    colour_by("colorer(3)");
    click("nom_province");
    press_key(Qt::Key_F3);
    EXPECT_EQ(QApplication::focusWidget(), &control<QWidget>("Picture1")) << "not the legend";
    EXPECT_EQ(cell(5, 1) + cell(6, 1), "ab");
    press_key(Qt::Key_F2);
    type("nom_province", "c");
    press_key(Qt::Key_F4);
    EXPECT_EQ(cell(5, 1) + cell(6, 1), "cc") << "what was typed is written before";
    press_key(Qt::Key_F2);
    type("férocité", "9");
    press_key(Qt::Key_F4);
    EXPECT_EQ(boxes.take().size(), 1U) << "refused once";
    press_key(Qt::Key_F2);
    auto* legend = control<QTreeWidget>("légende_liste").viewport();
    QTest::mouseClick(legend, Qt::LeftButton, {}, {10, 5});
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "1-2018");
    press_key(Qt::Key_F5);
    EXPECT_EQ(QApplication::focusWidget(), &control<QWidget>("Picture1"));
}

} // namespace
