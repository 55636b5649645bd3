#include "editor/controls.h"
#include "support/panel.h"

namespace {

using namespace std::string_literals;
using support::Panel;

constexpr int fields = 58;

enum class By { typing, press, space, item };

struct FieldRow {
    int field;
    By by;
    const char* stored;
    const char* control;
    const char* shown;
    const char* input;   // text, or item of a list
    const char* entered; // the cell afterwards
    std::map<int, const char*> side_effects = {};
};

const FieldRow field_rows[] = {
    {1, By::typing, "Porto", "nom_province", "Porto", "\xC9vora", "\xC9vora"},
    {2, By::press, "Coastal", "cote", "on", "", "inland"},
    {2, By::space, "inland", "cote", "off", "", "coastal"},
    {2, By::press, "", "cote", "off", "", "coastal"},
    {3, By::press, "Sunni", "religion(3)", "6", "", "protestant"},
    {3, By::press, "unknown", "religion(10)", "", "", "buddhist"},
    {4, By::item, "AKAN", "culture", "Akan", "(none)", "none"},
    {4, By::item, "unknown", "culture", "", "Albanian", "albanian"},
    {5, By::typing, "-1", "taille", "-1", "two", "two"},
    {7, By::press, "0", "climat(0)", "8", "", "8"},
    {8, By::press, "1", "océan(0)", "on", "", "0"},
    {9, By::space, "0", "océan(1)", "off", "", "1"},
    {10, By::press, "1.0", "océan(2)", "on", "", "0"},
    {11, By::typing, "7", "manpower", "7", "", ""},
    {12, By::typing, "7", "income", "7", "12,5", "12,5"},
    {13, By::space, "6", "terrain(0)", "6", "", "0"},
    {14, By::press, "1", "tot(1)", "2", "", "0", {{15, "1"}}},
    {14, By::press, "x", "tot(2)", "0", "", "1", {{15, "0"}}},
    {15, By::press, "1", "tot(0)", "1", "", "0", {{14, "0"}}},
    {16, By::press, "0", "serge(1)", "0", "", "1"},
    {18, By::typing, "9", "mine", "9", "10", "10"},
    {19, By::press, "gold", "production(0)", "1", "", "nothing", {{17, "0"}}},
    {19, By::press, "fish", "production(1)", "9", "", "gold", {{17, "1"}}},
    {20, By::press, "1", "production_plus", "on", "", "0"},
    {21, By::press, "-3", "cot(8)", "0", "", "5"},
    {22, By::press, "9", "dc(1)", "9", "", "1"},
    {23, By::typing, "40", "natif", "40", "50", "50"},
    {24, By::typing, "2.7", "férocité", "2.7", "2,5", "2.5"},
    {25, By::typing, "1.25", "efficacité", "1.25", "0.4", "0.4"},
    {26, By::press, "3", "dt(0)", "3", "", "0"},
    {27, By::press, "0", "tol(9)", "0", "", "9"},
    {49, By::item, "akan", "aire", "", "Algarve", "algarve"},
    {50, By::item, "andes", "région", "Andes", "Alpine Lands", "alpinelands"},
    {51, By::press, "x", "continent(4)", "", "", "oceania"},
    {52, By::typing, "Faro", "nom_ville", "Faro", "A;B", "A;B"},
    {53, By::typing, "1", "rivière0", "1", "2", "2"},
    {54, By::typing, "1", "rivière1", "1", "2", "2"},
    {55, By::typing, "1", "rivière2", "1", "2", "2"},
};

TEST_F(Panel, EachFieldIsShownAndEnteredThroughItsControl) {
    for (const auto& row : field_rows) {
        SCOPED_TRACE(testing::Message() << row.control << " " << row.stored);
        session.provinces = data::ProvinceTable();
        for (int field = 1; field <= fields; ++field) {
            for (int province = 4; province <= 7; ++province)
                load(province, field, "0");
        }
        select_with(row.field, row.stored, row.stored);
        EXPECT_EQ(shown(row.control), row.shown);

        QWidget& entry = visible(row.control);
        if (row.by == By::typing)
            enter(row.control, base::to_qstring(row.input));
        else if (row.by == By::press)
            QTest::mousePress(&entry, Qt::LeftButton, {},
                              spot(entry)); // the release is nothing's cause
        else if (row.by == By::item)
            pick(row.control, QString::fromLatin1(row.input));
        else {
            entry.setFocus();
            QTest::keyPress(&entry, Qt::Key_Space);
        }

        for (int field = 1; field <= fields; ++field) {
            const auto side_effect = row.side_effects.find(field);
            const std::string expected = field == row.field ? row.entered
                                         : side_effect != row.side_effects.end()
                                             ? side_effect->second
                                             : "0";
            EXPECT_EQ(cells(field), expected + "|" + expected) << "field " << field;
            EXPECT_EQ(cell(4, field) + cell(7, field), "00") << "not selected, field " << field;
        }
        const std::string now = shown(row.control);
        QTest::mouseRelease(&entry, Qt::LeftButton, {}, spot(entry));
        EXPECT_EQ(shown(row.control), now) << "the release toggles nothing";
        select(QStringLiteral("5;6"));
        EXPECT_EQ(shown(row.control), now) << "what was entered is what is shown";
    }
    EXPECT_TRUE(boxes.take().empty());
}

TEST_F(Panel, PositionsAreShownAndOnlyVariantsCopied) {
    const std::pair<int, const char*> labels[] = {
        {28, "ville(0)"},       {29, "ville(1)"},     {30, "armée(0)"},  {31, "armée(1)"},
        {32, "portc(0)"},       {33, "portc(1)"},     {36, "Port"},      {34, "manufacture(0)"},
        {35, "manufacture(1)"}, {37, "dessin(0)"},    {38, "dessin(1)"}, {39, "dessin_c(39)"},
        {40, "dessin(2)"},      {41, "dessin(3)"},    {43, "dessin(4)"}, {42, "dessin_c(42)"},
        {44, "dessin(5)"},      {45, "dessin_c(45)"}, {46, "dessin(6)"}, {47, "dessin(7)"},
        {48, "dessin_c(48)"},
    };
    for (const auto& [field, name] : labels) {
        const std::string value = "<b>" + std::to_string(field) + "</b>";
        select_with(field, value + "a", value + "A");
        EXPECT_EQ(shown(name), value + "a") << "the first one's spelling";
        click(name);
        const bool is_variant = std::string(name).starts_with("dessin_c");
        EXPECT_EQ(cells(field), value + "a|" + value + (is_variant ? "a" : "A")) << name;
        select_with(field, "1", "2");
        EXPECT_EQ(shown(name), "") << name;
        visible(name).setFocus();
        QTest::keyClick(&visible(name), Qt::Key_Space);
        EXPECT_EQ(cells(field), is_variant ? "|" : "1|2") << name;
    }
}

TEST_F(Panel, WithNothingSelectedAllIsEmptyAndNothingIsWritten) {
    for (int field = 1; field <= fields; ++field)
        load(5, field, "1");
    select(QStringLiteral("5"));
    EXPECT_EQ(shown("nom_province"), "1");
    click("Command2");
    EXPECT_EQ(shown("selection_text"), "");
    auto& panel = *control<QWidget>("panneau").findChild<QStackedWidget*>();
    for (auto* child : panel.findChildren<QWidget*>()) {
        const std::string name = child->objectName().toStdString();
        if (auto* text = qobject_cast<QLineEdit*>(child); text != nullptr && !name.empty()) {
            enter(name, QStringLiteral("1"));
            EXPECT_EQ(shown(name), "") << name;
            type(name, QStringLiteral("1"));
            QTest::keyClick(child, Qt::Key_Tab);
            EXPECT_EQ(shown(name), "") << name << " left";
        } else if (auto* button = qobject_cast<QAbstractButton*>(child);
                   button != nullptr && button->isCheckable()) {
            EXPECT_FALSE(button->isChecked()) << name;
            click(name);
            EXPECT_FALSE(button->isChecked()) << name;
        } else if (auto* list = qobject_cast<QComboBox*>(child)) {
            EXPECT_EQ(shown(name), "") << name;
            visible(name).setFocus();
            QTest::keyClick(list, Qt::Key_Down);
            EXPECT_EQ(shown(name), "") << name;
        } else if (auto* slider = qobject_cast<QSlider*>(child)) {
            EXPECT_EQ(slider->minimum(), 0);
            QTest::keyClick(slider, Qt::Key_Right);
            EXPECT_EQ(shown(name), "0") << name;
            EXPECT_EQ(shown(name.substr(0, name.size() - 2)), "") << name;
        }
    }
    EXPECT_FALSE(session.provinces.has_unsaved_changes());
}

TEST_F(Panel, OptionsAreChosenByThePressAlone) {
    select_with(3, "sunni", "hindu");
    press("religion(6)");
    EXPECT_EQ(cells(3), "sunni|sunni");
    load(6, 3, "hindu");
    press("religion(6)");
    EXPECT_EQ(cells(3), "sunni|sunni") << "the one that is on writes again";
    EXPECT_EQ(shown("religion"), "6");

    QWidget* focus = &visible("religion(6)");
    for (const auto& [key, next] : {std::pair{Qt::Key_Right, "religion(7)"},
                                    {Qt::Key_Down, "religion(10)"},
                                    {Qt::Key_Down, "religion(2)"},
                                    {Qt::Key_Up, "religion(10)"},
                                    {Qt::Key_Right, "religion(0)"},
                                    {Qt::Key_Left, "religion(10)"},
                                    {Qt::Key_Up, "religion(7)"}}) {
        QTest::keyClick(focus, key);
        focus = QApplication::focusWidget();
        EXPECT_EQ(focus->objectName().toStdString(), next);
    }
    EXPECT_EQ(cells(3) + shown("religion"), "sunni|sunni6") << "arrow keys write nothing";
    QTest::keyPress(focus, Qt::Key_Space);
    EXPECT_EQ(cells(3), "shiite|shiite");
    press("religion(0)", Qt::RightButton);
    EXPECT_EQ(cells(3), "shiite|shiite") << "not the left button";
}

TEST_F(Panel, GreyedBoxesWriteWhatCheckedOnesDo) {
    for (const auto& [field, name, value] :
         {std::tuple{2, "cote", "inland"}, {8, "océan(0)", "0"}, {20, "production_plus", "0"}}) {
        select_with(field, "x", "y");
        control<QCheckBox>(name).setCheckState(Qt::PartiallyChecked);
        click(name);
        EXPECT_EQ(cell(6, field), value) << name;
        EXPECT_EQ(shown(name), "off");
    }
}

TEST_F(Panel, WhatTheLanguageFileLacksIsNeitherWrittenNorShown) {
    frame.reset();
    folder.write("english.lng", "\"RELIGION_\",\"Empty\"\r\n\"CULTURE_\",\"Empty\"\r\n");
    start();
    EXPECT_EQ(control<QRadioButton>("religion(1)").text(), QStringLiteral("Contre-Réforme"));
    EXPECT_EQ(shown("religion") + shown("culture"), "") << "nothing is selected";
    for (const int field : {3, 4})
        select_with(field, "x", "y");
    EXPECT_EQ(shown("religion") + shown("culture"), "") << "they differ";
    for (const char* missing : {"religion(1)", "religion(10)", "tot(1)"})
        press(missing);
    EXPECT_EQ(cells(3) + shown("religion"), "x|y");
    EXPECT_FALSE(session.provinces.has_unsaved_changes());
    press("religion(0)");
    EXPECT_EQ(cells(3), "|") << "the record has that code";
    EXPECT_EQ(shown("religion"), "");
    select_with(4, "", "");
    EXPECT_EQ(shown("culture"), "Empty") << "a value like any other";
}

TEST(PanelControls, AWrongNameIsAnError) {
    editor::Controls controls;
    QLineEdit field;
    controls.add(QStringLiteral("nom"), &field);
    EXPECT_EQ(&controls.get<QLineEdit>(QStringLiteral("nom")), &field);
    EXPECT_THROW(controls.get<QLineEdit>(QStringLiteral("nm")), std::logic_error);
    EXPECT_THROW(controls.get<QSlider>(QStringLiteral("nom")), std::logic_error);
    EXPECT_THROW(controls.add(QStringLiteral("nom"), &field), std::logic_error);
}

TEST_F(Panel, ListsTakeTheFirstEntryOfAText) {
    frame.reset();
    folder.write("english.lng", "\"CULTURE_first\",\"Same\"\r\n\"CULTURE_second\",\"SAME\"\r\n");
    start();
    select_with(4, "x", "y");
    pick("culture", QStringLiteral("SAME"));
    EXPECT_EQ(cells(4), "first|first");
    auto& list = control<QComboBox>("culture");
    EXPECT_EQ(list.count(), 109);
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(cells(4), "|") << "an entry that the language lacks";
    QTest::keyClick(&list, Qt::Key_S);
    EXPECT_EQ(shown("culture"), "Same") << "found by its letter";
    EXPECT_EQ(cells(4), "first|first");
    EXPECT_TRUE(boxes.take().empty());
}

TEST_F(Panel, NumbersAndTheirSliders) {
    const struct {
        const char* control;
        int field;
        const char* typed;
        const char* message; // none: it is stored
        const char* stored;
        const char* position;
    } rows[] = {
        {"efficacité", 25, "1,5", "", "1.5", "15"},  {"efficacité", 25, "2,5", "", "2.5", "20"},
        {"efficacité", 25, "0.25", "", "0.25", "2"}, {"efficacité", 25, "2.1", "mess1", "x", "7"},
        {"férocité", 24, "-1", "mess2", "x", "2"},   {"férocité", 24, "5,1", "", "5.1", "20"},
        {"férocité", 24, "5.01", "mess2", "x", "2"}, {"férocité", 24, "abc", "", "abc", "0"},
        {"férocité", 24, "", "", "", "0"},
    };
    for (const auto& row : rows) {
        for (const bool by_enter : {true, false}) {
            SCOPED_TRACE(testing::Message() << row.control << " " << row.typed << by_enter);
            select_with(row.field, "0.7", "0.7");
            load(5, row.field, "x");
            load(6, row.field, "x");
            type(row.control, QString::fromLatin1(row.typed));
            QTest::keyClick(&visible(row.control), by_enter ? Qt::Key_Return : Qt::Key_Tab);
            QTest::qWait(20);
            const auto seen = boxes.take();
            ASSERT_EQ(seen.size(), *row.message == 0 ? 0U : 1U);
            if (!seen.empty()) {
                EXPECT_EQ(seen[0].name, "message");
                EXPECT_EQ(seen[0].text,
                          session.language.message(row.message == "mess1"s
                                                       ? data::Message::efficiency_out_of_range
                                                       : data::Message::ferocity_out_of_range));
                EXPECT_EQ(shown(row.control), "");
            }
            EXPECT_EQ(cells(row.field), row.stored + "|"s + row.stored);
            EXPECT_EQ(shown(row.control + "_s"s), row.position);
            click("Command1"); // leaves the field
            EXPECT_EQ(cells(row.field), row.stored + "|"s + row.stored);
            EXPECT_TRUE(boxes.take().empty());
        }
    }
}

TEST_F(Panel, SlidersWriteOnlyWhatTheUserDoes) {
    select_with(24, "2.7", "2.7");
    select_with(25, "0.37", "1.99");
    EXPECT_EQ(shown("férocité_s") + " " + shown("efficacité_s"), "10 0");
    EXPECT_EQ(cells(24) + " " + cells(25), "2.7|2.7 0.37|1.99");
    EXPECT_FALSE(session.provinces.has_unsaved_changes());

    auto& slider = visible("férocité_s");
    slider.setFocus();
    QTest::keyClick(&slider, Qt::Key_Home);
    EXPECT_EQ(cells(24), "0|0");
    for (int n = 0; n < 10; ++n)
        QTest::keyClick(&slider, Qt::Key_Right);
    EXPECT_EQ(cells(24) + shown("férocité"), "2.5|2.52.5");

    auto& other = visible("efficacité_s");
    const int handle = other.style()->pixelMetric(QStyle::PM_SliderLength) / 2;
    drag(other, QEvent::MouseButtonPress, handle);
    drag(other, QEvent::MouseMove, other.width() / 2);
    EXPECT_EQ(cells(25), "1|1") << "while it is dragged";
    EXPECT_EQ(shown("efficacité"), "1");
    drag(other, QEvent::MouseMove, other.width() + 10);
    drag(other, QEvent::MouseButtonRelease, other.width() + 10);
    EXPECT_EQ(cells(25), "2|2");
}

} // namespace
