#include "map/field_colours.h"
#include "map/palette.h"
#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QDockWidget>
#include <QScrollBar>
#include <QTreeWidget>

/// The map coloured by a field, and its legend, in the main frame.
namespace {

constexpr int width = 200;
constexpr QRgb paper = 0xFFE0D0C0;
constexpr int religion = 3; // field
constexpr int hindu = 4;    // among the language file's codes
constexpr int orthodox = 5;

class Colours : public support::MainFrame {
  protected:
    /// Provinces 5 and 6 share the map, left and right.
    Colours() {
        folder.write("relief.bmp",
                     bitmaps::painted(width, 120, [](int, int) { return paper & 0xFFFFFF; }));
        folder.write("ids.bmp", bitmaps::painted(width, 120, [](int x, int) {
                         return bitmaps::colour_of(x <= width / 2 ? 5 : 6);
                     }));
        load(5, religion, "hindu");
        load(6, religion, "orthodox");
    }

    QRgb seen(int x) const {
        auto& surface = control<QWidget>("Picture1");
        return frame->grab().toImage().pixel(surface.mapTo(frame.get(), QPoint(x, 50)));
    }
    /// Returns the colour of a religion's code on the map.
    QRgb shown(std::size_t code) const {
        const QColor colour = QColor::fromRgb(map::code_colour(code));
        const double part = (154.0 + (0xE0 + 2 * 0xD0 + 0xC0) / 4 * 102 / 256) / 256;
        return qRgb(static_cast<int>(colour.red() * part), static_cast<int>(colour.green() * part),
                    static_cast<int>(colour.blue() * part));
    }
    std::string legend() const {
        QString rows;
        for (int row = 0; row < list().topLevelItemCount(); ++row)
            rows +=
                list().topLevelItem(row)->text(0) + ' ' + list().topLevelItem(row)->text(1) + '\n';
        return rows.toStdString();
    }
    QTreeWidget& list() const { return control<QTreeWidget>("légende_liste"); }
    QString selection_text() const { return control<QLineEdit>("selection_text").text(); }
};

TEST_F(Colours, TheMapShowsAFieldAndTheLegendSelects) {
    start();
    EXPECT_FALSE(action("colorer(3)").isEnabled());
    open_maps("relief.bmp", "", "ids.bmp");
    EXPECT_EQ(seen(20), paper);
    EXPECT_EQ(action("colorer(3)").text(), "Religion");
    colour_by("colorer(3)");
    EXPECT_EQ(seen(20), shown(hindu));
    EXPECT_EQ(seen(150), shown(orthodox));
    press_key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(seen(width / 4), shown(hindu)) << "no mixture of two provinces' identifiers";
    open_maps("relief.bmp", "", "ids.bmp");
    EXPECT_EQ(seen(20), shown(hindu)) << "a new window shows the colours, too";
    EXPECT_EQ(legend(), "Hindu 1\nOrthodox 1\nNo value 2016\n");
    EXPECT_EQ(control<QDockWidget>("légende").windowTitle(), "Religion");

    const auto row = [this](int at) {
        return list().visualItemRect(list().topLevelItem(at)).center();
    };
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, row(1));
    EXPECT_EQ(selection_text(), "6");
    click("religion(4)"); // what is edited changes colour at once
    EXPECT_EQ(cell(6, religion), "hindu");
    EXPECT_EQ(seen(190), shown(hindu));
    EXPECT_EQ(legend(), "Hindu 2\nNo value 2016\n");
    EXPECT_TRUE(list().selectedItems().empty()) << "not the entry that has taken the place";
    list().setFocus();
    for (int row_of_none = 0; row_of_none < 2; ++row_of_none)
        QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(selection_text(), "1-4;7-2018");
    select("6");
    click("religion(5)");
    ASSERT_EQ(list().selectedItems().size(), 1);
    EXPECT_EQ(list().selectedItems().front()->text(0), "No value") << "it has moved on a row";
    click("religion(4)");

    colour_by("colorer(0)");
    EXPECT_FALSE(control<QDockWidget>("légende").isVisible());
    EXPECT_EQ(seen(190), paper);
    colour_by("colorer(3)");
    control<QDockWidget>("légende").close();
    EXPECT_EQ(seen(190), paper);
    EXPECT_TRUE(action("colorer(0)").isChecked());

    colour_by("colorer(3)");
    for (int province = 101; province < 200; ++province)
        load(province, religion, std::to_string(province));
    QCoreApplication::processEvents();
    list().scrollToBottom();
    const int scrolled = list().verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    select("5");
    click("religion(5)");
    EXPECT_EQ(list().verticalScrollBar()->value(), scrolled) << "what is edited moves no list";
}

TEST_F(Colours, EveryFieldOfTheMenuColours) {
    start();
    open_maps("relief.bmp", "", "ids.bmp");
    for (const auto field : map::coloured_fields) {
        load(5, field.number, "7");
        colour_by("colorer(" + std::to_string(field.number) + ")");
        EXPECT_NE(seen(20), paper) << field.number;
        EXPECT_GT(list().topLevelItemCount(), 0) << field.number;
    }
}

} // namespace
