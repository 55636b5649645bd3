#include "support/bitmaps.h"
#include "support/panel.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QHeaderView>
#include <QTableView>

/// The search for provinces, and the way back through the selections.
namespace {

class Search : public support::Panel {
  protected:
    void find() const {
        come_back();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F, Qt::ControlModifier);
        wait_for_form();
    }
    /// Comes to the search, as a desktop does when a list over it was closed.
    void wait_for_form() const {
        auto* form = frame->findChild<QDialog*>("Form_recherche");
        QCoreApplication::processEvents(); // the list's coming may still be on its way
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([form] { return QApplication::activeWindow() == form; }));
    }
    template <class Control>
    Control& in_form(const char* name) const {
        return driver::control<Control>(driver::control<QDialog>(*frame, "Form_recherche"), name);
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, keys);
        QCoreApplication::processEvents();
    }
    void push(const char* button) const {
        driver::press(driver::control<QDialog>(*frame, "Form_recherche"), button);
    }
    static void write(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }
    /// Returns what is listed, "province name value, ".
    std::string listed() const {
        const auto& model = *in_form<QTableView>("résultats").model();
        if (model.rowCount() > 10)
            return std::to_string(model.rowCount());
        QString all;
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < 3; ++column)
                all += model.index(row, column).data().toString() + (column < 2 ? " " : ", ");
        }
        return base::to_bytes(all);
    }
    std::string shown_count() const { return in_form<QLabel>("count").text().toStdString(); }
    std::string asked() const {
        return in_form<QComboBox>("field").currentText().toStdString() + "|" +
               in_form<QComboBox>("comparison").currentText().toStdString() + "|" +
               in_form<QLineEdit>("text").text().toStdString();
    }
};

TEST_F(Search, FindsWhileOneTypesAndMakesSelections) {
    load(5, 1, "Northmoor");
    load(700, 1, "Southmoor");
    load(1500, 52, "Moorgate");
    const QString longest = "A name that is longer than those of other provinces";
    load(2018, 1, longest.toStdString());
    find();
    EXPECT_EQ(listed(), "2018");
    const auto& names = in_form<QTableView>("résultats");
    EXPECT_GE(names.columnWidth(1), names.fontMetrics().horizontalAdvance(longest));
    write("MOOR");
    EXPECT_EQ(listed(), "5 Northmoor , 700 Southmoor , 1500  Moorgate, ");
    EXPECT_EQ(shown_count(), "3 provinces");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(shown("selection_text"), "700");
    const std::pair<const char*, const char*> buttons[] = {
        {"select_all", "5;700;1500"},
        {"invert", "1-4;6-699;701-1499;1501-2018"},
        {"add", "1-2018"},
        {"remove", "1-4;6-699;701-1499;1501-2018"},
        {"keep", ""},
        {"add", "5;700;1500"}};
    for (const auto& [button, selected] : buttons) {
        push(button);
        EXPECT_EQ(shown("selection_text"), selected) << button;
    }
    EXPECT_EQ(session.selection.provinces().size(), 3U);

    auto& list = in_form<QTableView>("résultats");
    QTest::mouseClick(list.horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 5});
    QTest::mouseClick(list.horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 5});
    QTest::keyClick(&in_form<QLineEdit>("text"), Qt::Key_Backspace);
    EXPECT_EQ(listed().substr(0, 5), "1500 ") << "the order stays while one types";
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(shown("selection_text"), "1500");
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(shown_count(), "3 provinces, 2 chosen");
    push("select_all");
    EXPECT_EQ(shown("selection_text"), "700;1500") << "several chosen rows are meant, not all";
}

TEST_F(Search, BeginsWithTheFieldThatHasTheFocus) {
    load(8, 3, "SUNNI");
    select_with(3, "sunni", "sunni");
    visible("religion(6)").setFocus();
    find();
    EXPECT_EQ(asked(), "Religion|equals|Sunni");
    EXPECT_EQ(listed(), "5  sunni, 6  sunni, 8  SUNNI, ");
    press(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return shown("selection_text") == "5;6;8"; }));

    load(6, 3, "other");
    come_back();
    select("5;6");
    visible("religion(0)").setFocus();
    find();
    EXPECT_EQ(asked(), "Religion|contains|") << "the values differ";

    come_back();
    type("nom_province", "Typed");
    find();
    EXPECT_EQ(asked(), "Province name (Name)|equals|Typed");
    EXPECT_EQ(listed(), "5 Typed Typed, 6 Typed Typed, ");
    const std::pair<const char*, const char*> fields[] = {
        {"tot(0)", "Treaty of Tordesillas (ToT-SPA, ToT-POR)|equals|None"},
        {"océan(1)", "Storms (Storm?)|equals|"},
        {"culture", "Culture|equals|"},
        {"férocité_s", "Native ferocity (Ferocity)|equals|"},
        {"rivière2", "Adjacent rivers (id) 3 (Extra River Desc Link 3)|equals|"}};
    for (const auto& [name, begun] : fields) {
        come_back();
        visible(name).setFocus();
        find();
        EXPECT_EQ(asked(), begun);
        EXPECT_EQ(listed(), "2018") << name;
    }
}

TEST_F(Search, FieldsAreChosenByTypingTheirHeaderToo) {
    load(9, 16, "1");
    find();
    press(Qt::Key_F, Qt::AltModifier);
    write("hre");
    press(Qt::Key_Return);
    wait_for_form();
    EXPECT_EQ(asked(), "Holy Roman Empire (HRE)|contains|");
    press(Qt::Key_T, Qt::AltModifier);
    write("yes");
    EXPECT_EQ(listed(), "9  1 (Yes), ");
    press(Qt::Key_F, Qt::AltModifier);
    write("no such field");
    wait_for_form();
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(asked(), "Holy Roman Empire (HRE)|contains|yes");
    for (const char* chosen : {"equals", "differs from", "is empty"}) {
        press(Qt::Key_Down);
        EXPECT_EQ(in_form<QComboBox>("comparison").currentText().toStdString(), chosen);
    }
    EXPECT_EQ(listed(), "2017");

    load(5, 12, "9");
    load(6, 12, "10");
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_T, Qt::AltModifier);
    write("1");
    press(Qt::Key_F, Qt::AltModifier);
    write("income");
    EXPECT_TRUE(in_form<QComboBox>("field").completer()->popup()->isVisible());
    press(Qt::Key_T, Qt::AltModifier); // leaving the field chooses, too
    EXPECT_EQ(asked(), "Income|is greater than|1");
    EXPECT_FALSE(in_form<QComboBox>("field").completer()->popup()->isVisible());
    wait_for_form();
    auto& header = *in_form<QTableView>("résultats").horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(2) + 8, 5});
    EXPECT_EQ(listed(), "5  9, 6  10, ") << "by their size";
}

TEST_F(Search, GoesOnWhenTheMapsAndTheTableChangeBelow) {
    folder.write("ids.bmp",
                 bitmaps::painted(64, 48, [](int, int) { return bitmaps::colour_of(5); }));
    open_maps("ids.bmp", "", "ids.bmp");
    load(5, 1, "Northmoor");
    find();
    write("north");
    open_maps("ids.bmp", "", "ids.bmp");
    load(6, 1, "Northgate");
    wait_for_form();
    EXPECT_EQ(listed(), "5 Northmoor , 6 Northgate , ");
    press(Qt::Key_Return);
    EXPECT_EQ(shown("selection_text"), "5");
}

TEST_F(Search, StepsGoThroughTheSelectionsOfTheRun) {
    load(8, 1, "Eight");
    EXPECT_FALSE(action("sélection_précédente").isEnabled());
    select("5");
    select("7-8;8");
    select("7;8");
    frame->select("9");
    type("nom_province", "Nine");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(cell(9, 1) + cell(8, 1), "NineEight") << "it was typed for province 9";
    EXPECT_EQ(shown("selection_text"), "7-8;8");
    EXPECT_EQ(session.selection.provinces().size(), 2U);
    find();
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown("selection_text"), "5") << "from the dialog, too";
    EXPECT_FALSE(action("sélection_précédente").isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown("selection_text") + shown("nom_province"), "9Nine");
    EXPECT_FALSE(action("sélection_suivante").isEnabled());
    select("12x;6");
    select("5;3000");
    boxes.take();
    press_key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(boxes.take_one(), "none");
    EXPECT_EQ(shown("selection_text"), "6;12") << "what it selected";
    choose("recherche", "sélection_suivante");
    EXPECT_EQ(shown("selection_text"), "5");
}

} // namespace
