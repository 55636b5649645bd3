#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QLabel>
#include <QMdiSubWindow>
#include <QScrollBar>

/// Finding one's way on the map: the view moves to provinces, and shows what is to be placed.
namespace {

constexpr int width = 640;
constexpr int height = 480;
constexpr QRgb dot = 0xFF000000;
constexpr QRgb line = 0xFFFFE000;
constexpr QSize view(200, 150);

int province_at(int x, int y) {
    const QPoint point(x, y);
    const std::pair<int, QRect> provinces[] = {{2, {500, 400, 30, 20}},
                                               {3, {7, 7, 1, 1}},
                                               {4, {0, 200, 10, 10}},
                                               {4, {630, 200, 10, 10}},
                                               {6, {560, 50, 10, 10}}};
    for (const auto& [province, rectangle] : provinces) {
        if (rectangle.contains(point))
            return province;
    }
    return 1;
}

class Places : public support::MainFrame {
  protected:
    Places() {
        static const std::string identifiers = bitmaps::painted(
            width, height, [](int x, int y) { return bitmaps::colour_of(province_at(x, y)); });
        static const std::string paper =
            bitmaps::painted(width, height, [](int, int) { return 0xE0D0C0; });
        session.maps.map_1_path = folder.write("1.bmp", paper);
        session.maps.id_map_path = folder.write("id.bmp", identifiers);
        folder.write("config.txt", "\"LAN\",\"english.lng\",0\r\n");
    }
    /// Opens the maps in a window that shows a small part of them.
    void start_with_maps() {
        start();
        frame->open_maps();
        auto* window = frame->findChild<QMdiSubWindow*>();
        for (int times = 0; times < 2; ++times) { // scroll bars take room of the first one
            window->resize(view + window->size() - viewport().size());
            QCoreApplication::processEvents();
        }
        ASSERT_EQ(viewport().size(), view);
    }
    void wait_for_index() const {
        // The count leaves the provinces out that the map lacks.
        press_key(Qt::Key_F3);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !told("état").startsWith("lacking: 2018"); }));
        press_key(Qt::Key_F2);
    }
    QWidget& surface() const { return control<QWidget>("Picture1"); }
    QWidget& viewport() const { return *surface().parentWidget()->parentWidget(); }
    QPoint corner() const { return -surface().mapTo(&viewport(), QPoint(0, 0)); }
    void scroll_to(QPoint point) const {
        auto* bars = viewport().parentWidget();
        for (auto* bar : bars->findChildren<QScrollBar*>())
            bar->setValue(bar->orientation() == Qt::Horizontal ? point.x() : point.y());
        ASSERT_EQ(corner(), point);
    }
    QRgb seen(QPoint point) const {
        return surface().grab({point, QSize(1, 1)}).toImage().pixel(0, 0);
    }
    void click_map(QPoint point) const {
        QTest::mouseClick(&surface(), Qt::LeftButton, {}, point);
        QCoreApplication::processEvents();
    }
    QString told(const char* label) const { return control<QLabel>(label).text(); }
};

TEST_F(Places, ViewFollowsASelectionOfWhichNothingIsSeen) {
    start_with_maps();
    const struct {
        const char* selection;
        QPoint from;
        QPoint to;
    } rows[] = {
        {"2", {0, 0}, {415, 330}},     // to its middle, as far as the map reaches
        {"2", {320, 300}, {320, 300}}, // a corner of it is in view
        {"1", {50, 60}, {50, 60}},     // all around
        {"4", {100, 150}, {0, 126}},   // on both edges: the view is between them
        {"4", {440, 150}, {440, 150}}, // the right one is in view
        {"2;6", {0, 0}, {416, 326}},   // both do not fit: the first one
        {"2;6", {440, 0}, {440, 0}},   // one of them is in view
        {"3", {300, 300}, {0, 0}},     // a single pixel
        {"6;9", {0, 0}, {440, 0}},     // 9 is not on the map
        {"9", {50, 60}, {50, 60}},     {"", {50, 60}, {50, 60}}, {"1-2018", {50, 60}, {50, 60}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.selection);
        scroll_to(row.from);
        select(row.selection);
        EXPECT_EQ(corner(), row.to);
    }
    scroll_to({320, 300});
    click_map({511, 411});
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "2");
    EXPECT_EQ(corner(), QPoint(320, 300));
}

TEST_F(Places, MontrerMovesToTheSelection) {
    start();
    select("2");
    EXPECT_FALSE(action("montrer").isEnabled()) << "there are no maps";
    frame.reset();
    start_with_maps();
    EXPECT_TRUE(action("montrer").isEnabled());
    scroll_to({320, 300});
    press_key(Qt::Key_F8);
    EXPECT_EQ(corner(), QPoint(415, 330));
    select("9");
    choose("carte", "montrer");
    EXPECT_EQ(told("notice"), "The ID map has no pixel of the selected provinces");
    EXPECT_EQ(corner(), QPoint(415, 330));
    click("Command2");
    EXPECT_FALSE(action("montrer").isEnabled()) << "nothing is selected";
}

TEST_F(Places, ProvincesThatTheGridMissesGetADotOnceTheyAreFound) {
    start_with_maps();
    wait_for_index();
    select("3;4");
    EXPECT_EQ(seen({7, 7}), dot);
    EXPECT_EQ(seen({0, 200}), dot);
    EXPECT_NE(seen({5, 205}), dot) << "a point of the grid is enough";
    frame->open_maps();
    EXPECT_NE(seen({7, 7}), dot) << "nothing is known of the new maps yet";
    EXPECT_EQ(seen({0, 200}), dot);
    EXPECT_TRUE(QTest::qWaitFor([this] { return seen({7, 7}) == dot; }));
}

TEST_F(Places, SuivanteGoesThroughTheProvincesWithoutAPosition) {
    load(1, 13, "5"); // the sea
    start_with_maps();
    EXPECT_FALSE(action("suivante").isEnabled());
    select("6");
    press_key(Qt::Key_F3);
    ASSERT_TRUE(action("suivante").isEnabled());
    press_key(Qt::Key_F9);
    EXPECT_EQ(told("notice"), "To be placed: 2");
    EXPECT_EQ(told("état").section(',', 0, 0), "lacking: 4");
    EXPECT_EQ(corner(), QPoint(415, 330));
    EXPECT_EQ(seen({500, 410}), line);
    press_key(Qt::Key_F9);
    EXPECT_NE(seen({500, 410}), line) << "another one is shown";
    EXPECT_EQ(corner(), QPoint(0, 0));
    EXPECT_EQ(seen({7, 7}), line);
    click_map({7, 7});
    EXPECT_EQ(cell(3, 28) + "," + cell(3, 29), "7,7");
    EXPECT_NE(seen({7, 6}), line) << "it is placed";

    press_key(Qt::Key_F9);
    EXPECT_EQ(surface().width(), width / 4) << "it lies on both edges";
    EXPECT_EQ(seen({159, 51}), line);
    press_key(Qt::Key_F9);
    press_key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(seen({560, 55}), line);
    press_key(Qt::Key_F2);
    EXPECT_NE(seen({560, 55}), line) << "in the mode only";
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "6") << "the selection stays";
    press_key(Qt::Key_F3);
    EXPECT_NE(seen({560, 55}), line) << "gone with the mode";
    choose("recherche", "suivante");
    EXPECT_EQ(told("notice"), "To be placed: 2") << "round the end";
    for (const QPoint point : {QPoint(510, 410), QPoint(0, 51), QPoint(141, 13)}) {
        click_map(point);
        press_key(Qt::Key_F9);
    }
    EXPECT_EQ(told("notice"), "No province on the map is left without this position");
    EXPECT_EQ(told("état").section(',', 0, 0), "lacking: 0");
}

TEST_F(Places, StrangeMapsDoNoHarm) {
    const auto one = [](int identifier) {
        return [identifier](int, int) { return bitmaps::colour_of(identifier); };
    };
    const std::string maps[] = {bitmaps::painted(1, 1, one(7)), bitmaps::painted(1, 1, one(4000)),
                                bitmaps::painted(300, 200, one(7)),
                                bitmaps::painted(33, 170, one(4000)), bitmaps::noise({300, 200})};
    for (const auto& map : maps) {
        SCOPED_TRACE(&map - maps);
        session.maps.id_map_path = folder.write("id.bmp", map);
        if (&map == &maps[0] || &map == &maps[3]) // else the two are of different sizes
            session.maps.map_1_path = session.maps.id_map_path;
        frame.reset();
        start();
        frame->open_maps();
        frame->colour_by({3});
        for (const char* selection : {"7", "1-2018"}) {
            select(selection);
            for (const Qt::Key key : {Qt::Key_F8, Qt::Key_F3, Qt::Key_F9, Qt::Key_F2, Qt::Key_9,
                                      Qt::Key_Minus, Qt::Key_Minus, Qt::Key_Minus, Qt::Key_Minus,
                                      Qt::Key_Minus, Qt::Key_0, Qt::Key_Plus, Qt::Key_Plus}) {
                press_key(key, key < Qt::Key_F1 ? Qt::ControlModifier : Qt::NoModifier);
                surface().grab();
                ASSERT_FALSE(surface().size().isEmpty());
            }
        }
        session.maps.map_1_path = folder.path("1.bmp");
        EXPECT_TRUE(QFile::resize(folder.native("id.bmp"), 60));
        const auto shortened = file("id.bmp");
        press_key(Qt::Key_F8);
        surface().grab();
        EXPECT_FALSE(session.provinces.has_unsaved_changes());
        EXPECT_EQ(file("id.bmp"), shortened);
        boxes.take_one(); // of colours that no province has
    }
    EXPECT_TRUE(application.ends.empty());
}

} // namespace
