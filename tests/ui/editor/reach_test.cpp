#include "support/panel.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMenuBar>
#include <QToolTip>

/// How the panel is reached by keyboard and read by a screen reader.
namespace {

using support::Panel;

class PanelReach : public Panel {
  protected:
    void start_in(const std::string& language) {
        frame.reset();
        folder.write("config.txt", "\"LAN\",\"" + language + "\",0\r\n");
        start();
    }
    QStackedWidget& pages() const {
        return *control<QWidget>("panneau").findChild<QStackedWidget*>();
    }
    static QChar letter_of(const QString& caption) {
        const auto mark = caption.indexOf('&');
        return mark < 0 ? QChar() : caption.at(mark + 1).toUpper();
    }
};

/// Calls the function with every control below that can be seen.
void walk(QAccessibleInterface& from, const std::function<void(QAccessibleInterface&)>& see) {
    for (int n = 0; n < from.childCount(); ++n) {
        auto* child = from.child(n);
        if (child == nullptr || child->state().invisible)
            continue;
        see(*child);
        walk(*child, see);
    }
}

TEST_F(PanelReach, EveryControlHasANameOfItsOwn) {
    load(5, 28, "120");
    load(6, 28, "120");
    load(6, 1, "differing");
    select(QStringLiteral("5;6"));
    std::set<QString> names;
    int controls = 0;
    for (int tab = 0; tab < 5; ++tab) {
        open_tab(tab);
        walk(*QAccessible::queryAccessibleInterface(&control<QWidget>("panneau")),
             [&](QAccessibleInterface& seen) {
                 const QString object = seen.object() != nullptr ? seen.object()->objectName() : "";
                 const bool is_control = seen.state().focusable || QString("ville(0)") == object;
                 if (!is_control || seen.role() == QAccessible::PageTabList)
                     return;
                 const QString name = seen.text(QAccessible::Name);
                 EXPECT_FALSE(name.isEmpty()) << object.toStdString() << seen.role();
                 EXPECT_FALSE(name.contains('&')) << name.toStdString();
                 names.insert(name);
                 ++controls;
             });
    }
    EXPECT_GT(controls, 130);
    for (const char* name :
         {"Province name", "Adjacent rivers (id) 3", "Catholic", "Native ferocity", "Ice", "Area",
          "City X: 120", "Drawing 2 No", "Select"})
        EXPECT_TRUE(names.contains(QString::fromLatin1(name))) << name;
    const auto* name = QAccessible::queryAccessibleInterface(&visible("nom_province"));
    EXPECT_EQ(name->text(QAccessible::Description), QStringLiteral("different values"));
}

TEST_F(PanelReach, LettersOfCaptionsClashWithNoOthers) {
    for (const auto* language : {"english.lng", "french.lng"}) {
        start_in(language);
        std::multiset<QChar> everywhere;
        for (const auto* menu : frame->menuBar()->actions()) {
            if (menu->shortcut().isEmpty()) // else it has a key of its own
                everywhere.insert(letter_of(menu->text()));
        }
        const auto& strip = control<QTabBar>("TabStrip1");
        for (int tab = 0; tab < strip.count(); ++tab)
            everywhere.insert(letter_of(strip.tabText(tab)));
        for (const auto* button : {"Command1", "Command2"})
            everywhere.insert(letter_of(control<QAbstractButton>(button).text()));
        int captions = 0;
        for (int tab = 0; tab < strip.count(); ++tab) {
            auto letters = everywhere;
            for (const auto* label : pages().widget(tab)->findChildren<QLabel*>()) {
                if (label->buddy() == nullptr)
                    continue;
                letters.insert(letter_of(label->text()));
                ++captions;
            }
            for (const QChar letter : letters) {
                EXPECT_TRUE(letter.isLetter()) << language << tab;
                EXPECT_EQ(letters.count(letter), 1U)
                    << language << tab << QString(letter).toStdString();
            }
        }
        EXPECT_EQ(captions, 13);
    }
}

TEST_F(PanelReach, ALetterLeadsToAFieldWithoutPassingThroughOthers) {
    select_with(1, "a", "b");
    open_tab(1);
    open_tab(0);
    for (const auto& [letter, name] : {std::pair{Qt::Key_W, "manpower"}, {Qt::Key_U, "culture"}}) {
        QTest::keyClick(QApplication::focusWidget(), letter, Qt::AltModifier);
        EXPECT_EQ(QApplication::focusWidget(), &control<QWidget>(name));
    }
    EXPECT_EQ(cells(1), "a|b");
}

TEST_F(PanelReach, TabReachesEachGroupOnce) {
    for (const bool forward : {false, true}) {
        for (const char* of_6 : {"hindu", "sunni"}) { // none is on, and one
            select_with(3, "sunni", of_6);
            const char* way[] = {"nom_ville", of_6[0] == 'h' ? "religion(0)" : "religion(6)",
                                 "culture"};
            if (!forward)
                std::swap(way[0], way[2]);
            visible(way[0]).setFocus();
            for (const int next : {1, 2}) {
                QTest::keyClick(QApplication::focusWidget(),
                                forward ? Qt::Key_Tab : Qt::Key_Backtab);
                EXPECT_EQ(QApplication::focusWidget(), &control<QWidget>(way[next])) << way[next];
            }
            click("selection_text");
            start_in("english.lng"); // in which no option was on yet
        }
    }
}

TEST_F(PanelReach, ToolTipsTellRangesAndWhatAClickDoes) {
    for (const char* name : {"efficacité", "efficacité_s"})
        EXPECT_EQ(control<QWidget>(name).toolTip(), "0 to 2");
    EXPECT_EQ(control<QWidget>("férocité").toolTip(), "0 to 5");
    EXPECT_EQ(base::to_bytes(control<QWidget>("dessin_c(45)").toolTip()),
              session.language.text(shell::Text::variant_tip));
}

TEST_F(PanelReach, ASelectionThatIsNotAppliedIsMarked) {
    auto& field = control<QLineEdit>("selection_text");
    const QString words =
        base::to_qstring(session.language.text(shell::Text::selection_not_applied_tip));
    const auto picture = [&] {
        field.setCursorPosition(0);
        visible("TabStrip1").setFocus(); // no cursor blinks in the picture
        return field.grab().toImage();
    };
    select(QStringLiteral("488"));
    EXPECT_EQ(field.accessibleDescription(), QString());
    const QImage applied = picture();
    type("selection_text", QStringLiteral("4"));
    EXPECT_EQ(field.accessibleDescription(), words);
    type("selection_text", QStringLiteral("488"));
    EXPECT_EQ(field.accessibleDescription(), QString()) << "that is the applied one";
    EXPECT_EQ(picture(), applied);
    type("selection_text", QStringLiteral("48"));
    QTest::keyClick(&field, Qt::Key_8);
    QTest::keyClick(&field, Qt::Key_8);
    EXPECT_EQ(field.text(), QStringLiteral("4888"));
    EXPECT_NE(picture(), applied);
    const QPoint middle = field.rect().center();
    QHelpEvent asked(QEvent::ToolTip, middle, field.mapToGlobal(middle));
    QApplication::sendEvent(&field, &asked);
    EXPECT_TRUE(QToolTip::text().contains(words));
    click("Command2");
    EXPECT_EQ(field.accessibleDescription(), QString());
}

} // namespace
