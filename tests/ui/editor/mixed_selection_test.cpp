#include "support/panel.h"

#include <QGroupBox>
#include <QHelpEvent>
#include <QToolTip>

/// What the panel shows of provinces that differ.
namespace {

using support::Panel;

class MixedSelection : public Panel {
  protected:
    QImage picture_of(QWidget& control) const {
        QCoreApplication::processEvents();
        return control.grab().toImage();
    }

    static QString tool_tip_of(QWidget& control) {
        QToolTip::showText({}, QStringLiteral("no tool tip")); // hiding one takes its time
        const QPoint middle = control.rect().center();
        QHelpEvent event(QEvent::ToolTip, middle, control.mapToGlobal(middle));
        QApplication::sendEvent(&control, &event);
        return QToolTip::text();
    }
};

TEST_F(MixedSelection, EveryKindOfControlIsMarkedWhileProvincesDiffer) {
    const struct {
        int field;
        const char* control;
        const char* one;
        const char* other;
        const char* told; // of the other value, within the tool tip
    } rows[] = {
        {1, "nom_province", "a", "<b>&", "&lt;b&gt;&amp; (1 province)"},
        {2, "cote", "inland", "coastal", "coastal (1"},
        {3, "Frame_population(3)", "sunni", "hindu", "Hindu (1"},
        {4, "culture", "akan", "", "(empty) (1"},
        {9, "océan(1)", "1", "0", "0 (1"},
        {14, "Frame_colonie(7)", "1", "0", "Spain (1"},
        {24, "férocité", "1", "2", "2 (1"},
        {24, "férocité_s", "1", "2", "2 (1"},
        {28, "ville(0)", "1", "2", "2 (1"},
        {39, "dessin_c(39)", "1", "2", "2 (1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.control);
        auto& control = visible(row.control);
        const auto select_both = [&](const char* of_6) {
            click("selection_text"); // no field of the panel is left with its text
            select_with(row.field, row.one, of_6);
        };
        select_both(row.one);
        const QImage agreeing = picture_of(control);
        EXPECT_FALSE(tool_tip_of(control).contains(QStringLiteral("different")));
        EXPECT_EQ(control.accessibleDescription(), QString());

        select_both(row.other);
        EXPECT_NE(picture_of(control), agreeing);
        const QString tip = tool_tip_of(control);
        EXPECT_TRUE(tip.contains(QStringLiteral("2 different values"))) << tip.toStdString();
        EXPECT_TRUE(tip.contains(QString::fromUtf8(row.told))) << tip.toStdString();
        EXPECT_EQ(control.accessibleDescription(), QStringLiteral("different values"));

        select_both(row.one);
        EXPECT_EQ(picture_of(control), agreeing) << "to the pixel";
    }
}

TEST_F(MixedSelection, TheMarkGoesWithTheEntryThatMakesThemAgree) {
    auto& name = control<QLineEdit>("nom_province");
    auto& list = control<QComboBox>("culture");
    select_with(4, "akan", "welsh");
    select_with(1, "a", "b");
    EXPECT_EQ(shown("nom_province"), "");
    EXPECT_EQ(name.placeholderText(), QStringLiteral("different values"));
    EXPECT_EQ(list.placeholderText(), QStringLiteral("different values"));
    QTest::mouseClick(&visible("nom_province"), Qt::LeftButton);
    QTest::keyClick(&name, Qt::Key_Tab);
    EXPECT_EQ(cells(1), "|");
    EXPECT_EQ(name.placeholderText(), QString()) << "both names are empty now";
    EXPECT_EQ(list.placeholderText(), QStringLiteral("different values"));
    pick("culture", QStringLiteral("Akan"));
    EXPECT_EQ(list.placeholderText(), QString());
    select_with(4, "akan", "welsh");
    select_with(4, "", "");
    EXPECT_EQ(list.currentIndex(), -1) << "both are empty, and no culture of the list is";
    // Neither does anything stay where nothing is selected.
    select_with(1, "a", "b");
    click("Command2");
    EXPECT_EQ(name.placeholderText(), QString());
}

TEST_F(MixedSelection, PlaceholdersCanBeReadInADarkPalette) {
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::black);
    select_with(1, "a", "b");
    frame->setPalette(dark); // as a desktop that changes its colours does
    const QPalette palette = control<QLineEdit>("nom_province").palette();
    EXPECT_EQ(palette.color(QPalette::Base), Qt::black);
    EXPECT_GT(palette.color(QPalette::PlaceholderText).lightness(), 200);
}

} // namespace
