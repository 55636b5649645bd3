#include "editor/panneau.h"
#include "support/panel.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>

/// When a text that stands in a field is written, and how the selection text is taken.
namespace {

using namespace std::string_literals;
using support::Panel;

TEST_F(Panel, PassingThroughAFieldWritesWhatItShows) {
    for (const auto& [field, name] :
         {std::pair{1, "nom_province"}, {52, "nom_ville"}, {11, "manpower"}, {24, "férocité"}}) {
        click("selection_text");
        select_with(field, "1", "2");
        visible(name).setFocus();
        EXPECT_EQ(cells(field), "1|2");
        QTest::keyClick(&visible(name), Qt::Key_Tab);
        EXPECT_EQ(cells(field), "|") << name;
    }
    // A value that is no number of the range was not typed here: it stays, without a message.
    select_with(24, "99", "99");
    QTest::mouseClick(&visible("férocité"), Qt::LeftButton);
    click("Command1");
    EXPECT_EQ(cells(24), "99|99");
    EXPECT_TRUE(boxes.take().empty());
}

TEST_F(Panel, AllBytesSurviveAField) {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    select_with(1, bytes, bytes);
    auto& field = visible("nom_province");
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_Tab);
    EXPECT_EQ(cell(6, 1), bytes) << "passed through";
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_End);
    for (const char16_t character :
         {u'\u0416', u'e', u'\u0301'}) // not in the code page, e, its accent
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QChar(character), {});
    QTest::keyClick(&field, Qt::Key_Left);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(cell(6, 1), bytes + "?\xE9") << "edited";
    EXPECT_EQ(shown("nom_province"), bytes + "?\xE9");
    EXPECT_EQ(control<QLineEdit>("nom_province").text().right(2), QStringLiteral("?\u00E9"));
    EXPECT_EQ(control<QLineEdit>("nom_province").cursorPosition(), 257) << "the cursor stays";
}

TEST_F(Panel, WhatLeavesAFieldAndWhatDoesNot) {
    // Menus, boxes and another program are not leaving: the merged empty text is not written.
    select_with(1, "a", "b");
    auto& field = visible("nom_province");
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_O, Qt::ControlModifier); // answered with No
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::open_question));
    EXPECT_EQ(cells(1), "a|b");
    QTest::mouseClick(&visible("nom_province"), Qt::LeftButton);
    choose("langue", "langues(1)");
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::language_notice));
    EXPECT_EQ(cells(1), "a|b");
    QTest::mouseClick(&field, Qt::RightButton);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {3, 3}, field.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&field, &menu);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::setActiveWindow(nullptr);
    QApplication::sendEvent(&field, &away);
    EXPECT_EQ(cells(1), "a|b");
    // A tab takes the typed text to the table, and gives the focus to no field.
    for (int tab = 4; tab >= 0; --tab) {
        type("nom_province", QString::number(tab));
        open_tab(tab == 0 ? 1 : tab);
        EXPECT_EQ(cell(6, 1), std::to_string(tab));
        EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr);
        EXPECT_TRUE(control<QStackedWidget>("").currentIndex() == (tab == 0 ? 1 : tab));
    }
    type("manpower", QStringLiteral("9"));
    auto& strip = control<QTabBar>("TabStrip1");
    QTest::keyClick(frame.get(), Qt::Key_C, Qt::AltModifier); // "&Colony"
    EXPECT_EQ(strip.currentIndex(), 3);
    EXPECT_EQ(cells(11), "9|9");
    type("natif", QStringLiteral("8"));
    QTest::keyClick(frame.get(), Qt::Key_C, Qt::AltModifier); // its page is shown already
    EXPECT_EQ(QApplication::focusWidget(), &strip);
    EXPECT_EQ(cells(23), "8|8");
    // A dialog is not leaving either.
    select_with(1, "a", "b");
    QTest::mouseClick(&visible("nom_province"), Qt::LeftButton);
    in_dialog("Form2", [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QTest::keyClick(&control<QWidget>("nom_province"), Qt::Key_M, Qt::ControlModifier);
    EXPECT_EQ(cells(1), "a|b");
}

TEST_F(Panel, EnterThatIsHeldWritesOnce) {
    select_with(1, "a", "b");
    type("nom_province", QStringLiteral("c"));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QApplication::sendEvent(&control<QWidget>("nom_province"), &held);
    EXPECT_EQ(cells(1), "a|b");
    QTest::keyClick(&control<QWidget>("nom_province"), Qt::Key_Return);
    EXPECT_EQ(cells(1), "c|c");

    boxes.before_answer = [&held](QMessageBox& box) {
        QApplication::sendEvent(box.defaultButton(), &held);
        EXPECT_TRUE(box.isVisible());
    };
    type("férocité", QStringLiteral("9"));
    QTest::keyClick(&control<QWidget>("férocité"), Qt::Key_Return);
    EXPECT_EQ(boxes.take().size(), 1U) << "the key that opened the box does not close it";
}

TEST_F(Panel, TypedTextsAreWhatLeavingWouldStore) {
    const auto typed = [&] { return control<editor::Panneau>("panneau").typed_texts(); };
    const struct {
        const char* control;
        int field;
        const char* typed;
        std::optional<std::string> stored;
    } rows[] = {
        {"nom_province", 1, "1,5;", "1,5;"}, {"rivière2", 55, "", ""},
        {"férocité", 24, "2,5", "2.5"},      {"férocité", 24, "9", {}},
        {"efficacité", 25, "2.1", {}},       {"efficacité", 25, "1", "1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.control << " " << row.typed);
        click("selection_text"); // leaves the field of the row before
        select_with(row.field, "0.7", "0.7");
        EXPECT_TRUE(typed().empty());
        type(row.control, QString::fromLatin1(row.typed));
        std::vector<editor::TypedText> expected;
        if (row.stored)
            expected = {{{row.field}, *row.stored}};
        EXPECT_EQ(typed(), expected);
        EXPECT_EQ(cells(row.field), "0.7|0.7");
        QTest::keyClick(&visible(row.control), Qt::Key_Return);
        EXPECT_EQ(cell(6, row.field), row.stored.value_or("0.7"));
        EXPECT_TRUE(typed().empty()) << "a refused one is none";
        boxes.take();
    }
}

TEST_F(Panel, TheFocusComesBackToARefusedNumber) {
    const struct {
        const char* to; // what takes the focus, "" for the next field
        bool comes_back;
    } rows[] = {{"", true},
                {"efficacité", true},
                {"TabStrip1", true},
                {"tol(1)", true},
                {"Command2", false}};
    // Some desktops activate the frame before the focus is sent back, others later.
    boxes.before_answer = [this](QMessageBox&) { QApplication::setActiveWindow(frame.get()); };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.to);
        select_with(25, "1", "2");
        select_with(24, "4", "4");
        type("férocité", QStringLiteral("9"));
        if (*row.to == '\0')
            QTest::keyClick(&visible("férocité"), Qt::Key_Tab);
        else
            click(row.to);
        QTest::qWait(20);
        EXPECT_EQ(boxes.take().size(), 1U);
        come_back();
        auto& field = control<QWidget>("férocité");
        EXPECT_EQ(field.hasFocus(), row.comes_back);
        EXPECT_EQ(field.isVisible(), true);
        QTest::keyClick(&field, Qt::Key_Return);
        QTest::keyClick(&field, Qt::Key_Tab);
        EXPECT_EQ(cells(24), "4|4") << "nothing was typed since";
        EXPECT_EQ(cells(25), "1|2") << "nobody left that field";
    }
    EXPECT_TRUE(boxes.take().empty());
}

TEST_F(Panel, LineEndsStayOutside) {
    auto& clipboard = *QApplication::clipboard();
    const std::function<void(QWidget & field, const QString& text)> ways[] = {
        [&](QWidget& field, const QString& text) {
            clipboard.setText(text);
            QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        },
        [&](QWidget& field, const QString& text) {
            clipboard.setText(text);
            QContextMenuEvent event(QContextMenuEvent::Mouse, {3, 3}, field.mapToGlobal(QPoint()));
            QApplication::sendEvent(&field, &event);
            auto& menu = static_cast<QMenu&>(*QApplication::activePopupWidget());
            QTest::keyClick(&menu, Qt::Key_P); // "&Paste"
        },
        [&](QWidget& field, const QString& text) {
            QMimeData dragged;
            dragged.setText(text);
            QDragEnterEvent enter({3, 3}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QApplication::sendEvent(&field, &enter);
            QDropEvent event({3, 3}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QApplication::sendEvent(&field, &event);
        },
        [&](QWidget& field, const QString& text) {
            QInputMethodEvent event;
            event.setCommitString(text);
            QApplication::sendEvent(&field, &event);
        },
    };
    for (const auto& bring : ways) {
        SCOPED_TRACE(&bring - ways);
        select_with(24, "2", "2");
        select_with(1, "x", "y");
        type("nom_province", {});
        bring(control<QWidget>("nom_province"), QStringLiteral("\r\na\r\nb\n\rc\n"));
        QTest::keyClick(&control<QWidget>("nom_province"), Qt::Key_Return);
        EXPECT_EQ(cells(1), "a b  c|a b  c");
        type("férocité", {});
        bring(control<QWidget>("férocité"), QStringLiteral("1.5\n"));
        QTest::keyClick(&control<QWidget>("férocité"), Qt::Key_Tab);
        EXPECT_EQ(cells(24), "1.5|1.5");
    }
    select_with(1, "a\nb\r", "a\nb\r");
    QTest::mouseClick(&visible("nom_province"), Qt::LeftButton);
    QTest::keyClick(&visible("nom_province"), Qt::Key_Home);
    ways[0](visible("nom_province"), QStringLiteral("c\n"));
    QTest::keyClick(&visible("nom_province"), Qt::Key_Return);
    EXPECT_EQ(cell(5, 1), "ca\nb\r") << "what came from a file stays";
}

TEST_F(Panel, LowWindowsScrollWhatHasTheFocusIntoView) {
    const auto scrolled = [&] {
        int bars = 0;
        for (int tab = 0; tab < 5; ++tab) {
            open_tab(tab);
            QCoreApplication::processEvents();
            const auto* page = static_cast<QScrollArea*>(
                control<QWidget>("panneau").findChild<QStackedWidget*>()->widget(tab));
            EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
            bars += page->verticalScrollBar()->isVisible() ? 1 : 0;
        }
        return bars;
    };
    EXPECT_EQ(scrolled(), 0);
    const int width = control<QWidget>("panneau").width();
    frame->resize(frame->width(), 300);
    EXPECT_GE(scrolled(), 3);
    frame->setFocus();
    std::set<QString> reached;
    for (int tab = 0; tab < 5; ++tab) {
        open_tab(tab);
        for (int n = 0; n < 30; ++n) {
            const auto* now = QApplication::focusWidget();
            EXPECT_EQ(now->visibleRegion().boundingRect().height(), now->height())
                << now->objectName().toStdString();
            reached.insert(now->objectName());
            QTest::keyClick(frame.get(), Qt::Key_Tab);
        }
    }
    for (const char* last : {"manpower", "rivière2", "mine", "tot(0)", "dessin_c(48)"})
        EXPECT_TRUE(reached.contains(QString::fromUtf8(last))) << last;
    frame->resize(frame->width(), 720);
    QCoreApplication::processEvents();
    EXPECT_EQ(control<QWidget>("panneau").width(), width);
}

TEST_F(Panel, TheWheelChangesNothing) {
    select_with(24, "2", "2");
    select_with(49, "algarve", "algarve");
    for (const char* name : {"férocité_s", "aire"}) {
        auto& turned = visible(name);
        click("selection_text");
        wheel(turned);
        EXPECT_FALSE(session.provinces.has_unsaved_changes()) << name;
        turned.setFocus();
        wheel(turned);
        EXPECT_FALSE(session.provinces.has_unsaved_changes()) << name << " was used";
    }
}

TEST_F(Panel, SelectionTexts) {
    load(5, 1, "five");
    select(QStringLiteral("5"));
    EXPECT_EQ(shown("nom_province"), "five");
    for (const char* beyond : {"2019", "1-99999999999"}) {
        select(QString::fromLatin1(beyond));
        const std::string text = boxes.take_one();
        EXPECT_TRUE(text.starts_with("run_time_error: ")) << text;
        EXPECT_NE(text.find("2019"), std::string::npos) << text;
        EXPECT_EQ(shown("nom_province"), "five") << "the panel stays as it was";
    }
    EXPECT_TRUE(application.ends.empty()) << "the program goes on";
    load(7, 1, "seven");
    select(QStringLiteral("7;2019"));
    boxes.take();
    QTest::mouseClick(&visible("nom_province"), Qt::LeftButton);
    QTest::keyClick(&visible("nom_province"), Qt::Key_Tab);
    EXPECT_EQ(cell(7, 1), "seven") << "what the panel still shows is another province's";
    select({});
    EXPECT_EQ(shown("nom_province"), "");
    type("selection_text", QStringLiteral("5--7"));
    EXPECT_EQ(shown("nom_province"), "") << "not applied yet";
    click("Command1");
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::malformed_selection));
    type("selection_text", QStringLiteral("5x"));
    click("Command1");
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::malformed_selection));
    EXPECT_EQ(shown("nom_province"), "five") << "applied as far as it reads";

    QString long_text;
    while (long_text.size() < 100'000)
        long_text += QStringLiteral("1-2018;");
    QApplication::clipboard()->setText(long_text);
    auto& field = control<QLineEdit>("selection_text");
    field.clear();
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(field.text().size(), long_text.size());
    EXPECT_EQ(session.selection.provinces().size(), 2018U);
}

TEST_F(Panel, ABoxIsToggledOncePerPress) {
    select_with(2, "inland", "inland");
    auto& box = visible("cote");
    press("cote");
    EXPECT_EQ(cells(2), "coastal|coastal");
    drag(box, QEvent::MouseMove, -50);
    drag(box, QEvent::MouseMove, 8);
    EXPECT_EQ(cells(2), "coastal|coastal") << "dragged out and in";
}

} // namespace
