#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QActionGroup>
#include <QLabel>
#include <QListWidget>

/// The loaded graphics: from config.txt and from the graphics dialog into the menus and the map.
namespace {

constexpr QRgb paper = 0xFFE0D0C0;
constexpr QRgb red = 0xFFFF0000;
constexpr QRgb blue = 0xFF0000FF;
constexpr int city_x = 28; // fields
constexpr int drawing_x = 37;

class GraphicsMenu : public support::MainFrame {
  protected:
    GraphicsMenu() {
        add_set("red", red);
        add_set("blue", blue);
        folder.write("gfx/lost.spr", descriptor("lost"));
        const auto id_5 = bitmaps::colour_of(5);
        folder.write("ids.bmp", bitmaps::painted(64, 64, [=](int, int) { return id_5; }));
        folder.write("map.bmp", plain(paper));
    }

    static std::string descriptor(const std::string& name) {
        return "Bitmap=\"" + name + ".bmp\"\r\norigin x=2 y=2\r\nframes=1\r\n";
    }
    static std::string plain(QRgb colour, int size = 64) {
        return bitmaps::painted(size, size, [=](int, int) { return colour & 0xFFFFFF; });
    }
    /// Returns a picture whose first row is transparent.
    static std::string sprite(QRgb colour) {
        return bitmaps::painted(9, 9,
                                [=](int, int y) { return y == 0 ? 0xFF00FFU : colour & 0xFFFFFF; });
    }
    void add_set(const QString& name, QRgb colour) const {
        folder.write("gfx/" + name + ".spr", descriptor(name.toStdString()));
        folder.write("gfx/bmp/" + name + ".bmp", sprite(colour));
    }
    /// Writes config.txt with city sets of those names.
    void configure(const std::vector<const char*>& city_sets) const {
        std::string records = "\"LAN\",\"english.lng\",0\r\n\"GFX\",\"" + folder.path("gfx") +
                              "\",0\r\n\"GFX2\",\"" + folder.path("art") + "\",1\r\n";
        for (const char* name : city_sets)
            records +=
                "\"ville\",\"" + folder.path("gfx") + "\\" + name + ".spr\",\"" + name + "\"\r\n";
        folder.write("config.txt", records);
    }
    static void click_item(QDialog& dialog, const char* list, const char* item) {
        auto& items = driver::control<QListWidget>(dialog, list);
        const auto found = items.findItems(item, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        QTest::mouseClick(items.viewport(), Qt::LeftButton, {},
                          items.visualItemRect(found[0]).center());
    }
    QRgb seen(QPoint point) const {
        return control<QWidget>("Picture1").grab().toImage().pixel(point);
    }
    /// Returns the captions of the kind's enabled items, the checked one in brackets.
    std::string offered(const std::string& items) const {
        std::string text;
        for (int n = 1; n <= 2; ++n) {
            const auto& item = action(items + "(" + std::to_string(n) + ")");
            const std::string caption = item.text().toStdString();
            if (item.isEnabled())
                text += item.isChecked() ? "[" + caption + "]" : caption;
        }
        return text;
    }
};

TEST_F(GraphicsMenu, ChoosesAmongTheSetsOfTheConfiguration) {
    configure({"red", "blue"});
    start();
    EXPECT_EQ(offered("ville_graph"), "[red]blue");
    EXPECT_EQ(offered("port_graph"), "");
    load(5, city_x, "30");
    load(5, city_x + 1, "30");
    open_maps("map.bmp", "", "ids.bmp");
    press_key(Qt::Key_F3);
    EXPECT_EQ(seen({32, 32}), red);
    EXPECT_EQ(seen({28, 28}), paper) << "transparent";
    choose("graphisme", "ville_graph(2)");
    EXPECT_EQ(offered("ville_graph"), "red[blue]");
    EXPECT_EQ(seen({32, 32}), blue);
    choose("graphisme", "ville_graph(2)");
    EXPECT_EQ(offered("ville_graph"), "red[blue]") << "chosen again, it stays";
    ASSERT_NE(action("ville_graph(2)").actionGroup(), nullptr);
    EXPECT_TRUE(action("ville_graph(2)").actionGroup()->isExclusive()) << "shown as radio marks";
    EXPECT_EQ(action("dessin_graph").actionGroup(), nullptr);

    in_dialog("Form3", [](QDialog& dialog) {
        click_item(dialog, "List_ville", "blue");
        driver::press(dialog, "sort_ville");
        driver::press(dialog, "Command3");
    });
    choose("fichier", "gfx");
    EXPECT_EQ(offered("ville_graph"), "[red]") << "the previewed set was taken out";
    EXPECT_EQ(seen({32, 32}), red);
}

TEST_F(GraphicsMenu, TurnsTheDrawingsOnAndOff) {
    configure({});
    folder.write("art/forest0.bmp", sprite(blue));
    start();
    for (const auto& [field, text] :
         {std::pair{13, "1"}, {drawing_x, "30"}, {drawing_x + 1, "30"}, {drawing_x + 2, "0"}})
        load(5, field, text);
    open_maps("map.bmp", "", "ids.bmp");
    press_key(Qt::Key_F7);
    const QPoint corner(26, 27); // the marker is round
    EXPECT_TRUE(action("dessin_graph").isChecked());
    EXPECT_EQ(seen(corner), blue);
    for (const bool on : {false, true}) {
        choose("graphisme", "dessin_graph");
        EXPECT_EQ(action("dessin_graph").isChecked(), on);
        EXPECT_EQ(seen(corner) == blue, on);
    }
}

TEST_F(GraphicsMenu, TellsWhyAMarkerStandsForASprite) {
    configure({"lost"});
    start();
    load(5, city_x, "30");
    load(5, city_x + 1, "30");
    open_maps("map.bmp", "", "ids.bmp");
    press_key(Qt::Key_F3);
    EXPECT_NE(seen({30, 30}), paper);
    EXPECT_TRUE(control<QLabel>("notice").text().contains("lost.bmp"))
        << control<QLabel>("notice").text().toStdString();
    EXPECT_EQ(control<QLabel>("Bar(1)").text(), base::to_qstring(session.language.status(3)));
}

TEST_F(GraphicsMenu, AddedSetsEnableTheirMode) {
    session.configuration.graphics_folder = folder.path("gfx");
    start();
    EXPECT_FALSE(action("ville_menu").isEnabled());
    in_dialog("Form3", [](QDialog& dialog) {
        click_item(dialog, "File1", "blue.spr");
        const driver::InDialog naming("Form5", [](QDialog& box) {
            QTest::keyClicks(&driver::control<QLineEdit>(box, "Text1"), "Towns & more");
            driver::press(box, "Command1");
        });
        driver::press(dialog, "entre_ville");
        driver::press(dialog, "Command3");
    });
    choose("fichier", "gfx");
    EXPECT_EQ(offered("ville_graph"), "[Towns && more]");
    for (const char* item : {"ville_menu", "armées_menu", "manuf_menu", "port_menu", "dessin_menu"})
        EXPECT_EQ(action(item).isEnabled(), item == std::string("ville_menu")) << item;
}

} // namespace
