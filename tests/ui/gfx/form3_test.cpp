#include "data/run_time_error.h"
#include "gfx/form3.h"
#include "shell/session.h"
#include "support/dialog_driver.h"
#include "support/folder.h"
#include "support/leaks.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace {

using driver::control;
using driver::message_during;
using driver::press;
using gfx::SpriteKind;

class Form3Test : public testing::Test {
  protected:
    Form3Test() {
        session.language = shell::LanguageTexts("\"MENU_Form3.Command2\",\"Dossier\"\r\n"
                                                "\"MENU_Form3.Label1 (3)\",\"Ports\"\r\n"
                                                "\"MENU_form3.command3\",\"other case\"\r\n"
                                                "\"MENU_Form5.Command1 \",\"Oui\"\r\n"
                                                "\"MENU_Form5.Label1\",\"Nom\"\r\n"
                                                "\"MESSAGE_mess3\",\"limit\"\r\n"
                                                "\"MESSAGE_mess4\",\"no name\"\r\n");
        session.configuration.graphics_folder = folder.path();
        folder.write("one.spr", "Bitmap=\"one.bmp\"\r\norigin x=1 y=1\r\nframes=1\r\n");
        folder.write("two.SPR", "Bitmap=\"a.bmp\" origin x=1 y=1 frames=1\r\n"
                                "Bitmap=\"b.bmp\" origin x=2 y=2 frames=2\r\n");
        folder.write("three.txt", "");
    }

    void run(const std::function<void(gfx::Form3&)>& act) {
        gfx::Form3 form(session, nullptr);
        driver::run(form, [&] { act(form); });
    }

    static void select(gfx::Form3& form, const char* list, const char* text) {
        auto& items = control<QListWidget>(form, list);
        const auto found = items.findItems(QString::fromLatin1(text), Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty()) << text;
        items.scrollToItem(found.front());
        QTest::mouseClick(items.viewport(), Qt::LeftButton, {},
                          items.visualItemRect(found.front()).center());
    }

    /// Presses the button; in the set name box that it opens, does what `act` says.
    static void press_and(gfx::Form3& form, const char* button,
                          const std::function<void(QDialog&)>& act) {
        const driver::InDialog naming("Form5", act);
        press(form, button);
    }

    static void add(gfx::Form3& form, const char* button, const char* name) {
        press_and(form, button, [name](QDialog& box) {
            QTest::keyClicks(&control<QLineEdit>(box, "Text1"), QString::fromLatin1(name));
            press(box, "Command1");
        });
    }

    static std::string texts(gfx::Form3& form, const char* list) {
        QStringList all;
        auto& items = control<QListWidget>(form, list);
        for (int row = 0; row < items.count(); ++row)
            all += items.item(row)->text();
        return base::to_bytes(all.join('/'));
    }

    int count(SpriteKind kind) const { return session.graphics.sprites.of(kind).count; }

    support::Folder folder;
    shell::Session session;
};

TEST_F(Form3Test, ShowsCaptionsFilesAndTheSetsWithinTheLimit) {
    auto& ports = session.graphics.sprites.of(SpriteKind::port).rows;
    ports[1].set_name = "second";
    ports[2].set_name = "beyond the limit";
    run([](gfx::Form3& form) {
        EXPECT_EQ(control<QPushButton>(form, "Command2").text(), "Dossier");
        EXPECT_EQ(control<QLabel>(form, "Label1(3)").text(), "Ports");
        EXPECT_NE(control<QPushButton>(form, "Command3").text(), "other case");
        EXPECT_EQ(texts(form, "File1"), "one.spr/two.SPR");
        EXPECT_EQ(texts(form, "List_port"), "second");
        EXPECT_EQ(texts(form, "List_armées"), "");
        press(form, "Command3");
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Form3Test, AddsASetOfEveryKind) {
    struct Kind {
        SpriteKind kind;
        const char* button;
        const char* list;
    };
    constexpr Kind kinds[] = {{SpriteKind::ville, "entre_ville", "List_ville"},
                              {SpriteKind::armees, "entre_armées", "List_armées"},
                              {SpriteKind::manuf, "entre_manuf", "List_manuf"},
                              {SpriteKind::port, "entre_port", "List_port"}};
    run([&](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        for (const auto& kind : kinds) {
            add(form, kind.button, "a, b");
            EXPECT_EQ(texts(form, kind.list), "a, b");
            EXPECT_EQ(count(kind.kind), 1) << kind.button;
            EXPECT_EQ(session.graphics.files.saved().back().kind, gfx::info(kind.kind).word);
        }
    });
    EXPECT_EQ(session.graphics.files.saved()[0].path, folder.path("one.spr"));
    EXPECT_EQ(session.graphics.sprites.of(SpriteKind::port).rows[0].bitmap_path,
              session.configuration.graphics_folder + "\\bmp\\one.bmp");
}

TEST_F(Form3Test, LimitIsReachedBySpritesAndFreedByTakingOut) {
    run([&](gfx::Form3& form) {
        select(form, "File1", "two.SPR");
        add(form, "entre_manuf", "pair"); // two sprites: the limit of two sets
        EXPECT_EQ(message_during([&] { press(form, "entre_manuf"); }), "limit");
        EXPECT_EQ(count(SpriteKind::manuf), 2);

        select(form, "List_manuf", "pair");
        press(form, "sort_manuf");
        EXPECT_EQ(texts(form, "List_manuf"), "");
        EXPECT_EQ(count(SpriteKind::manuf), 1);
        const auto& rows = session.graphics.sprites.of(SpriteKind::manuf).rows;
        EXPECT_EQ(rows[0].origin_x, 2); // only the first of the set's two rows went
        EXPECT_EQ(rows[0].set_name, "pair");
        EXPECT_EQ(rows[1].set_name, "");

        select(form, "File1", "one.spr");
        add(form, "entre_manuf", "single");
        EXPECT_EQ(rows[1].set_name, "single");
    });
    run([](gfx::Form3& form) { EXPECT_EQ(texts(form, "List_manuf"), "pair/single"); });
}

TEST_F(Form3Test, LimitIsTestedBeforeAFileIsAskedFor) {
    session.graphics.sprites.of(SpriteKind::port).count = 2;
    run([&](gfx::Form3& form) {
        EXPECT_EQ(message_during([&] { press(form, "entre_port"); }), "limit");
        EXPECT_EQ(message_during([&] { press(form, "entre_ville"); }), "none"); // no file selected
    });
    EXPECT_EQ(session.graphics.files.count(), 0);
}

TEST_F(Form3Test, SetNameBoxAsksAgainForAMissingName) {
    run([&](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        press_and(form, "entre_ville", [](QDialog& box) {
            EXPECT_EQ(control<QLabel>(box, "Label1").text(), "Nom");
            EXPECT_EQ(control<QPushButton>(box, "Command1").text(), "Oui");
            EXPECT_EQ(message_during([&] { press(box, "Command1"); }), "no name");
            EXPECT_TRUE(box.isVisible());
            QTest::keyClicks(&control<QLineEdit>(box, "Text1"), "towns");
            QTest::keyClick(&control<QLineEdit>(box, "Text1"), Qt::Key_Return);
        });
        EXPECT_EQ(texts(form, "List_ville"), "towns");
        press_and(form, "entre_ville", [](QDialog& box) {
            QTest::keyClicks(&control<QLineEdit>(box, "Text1"), "never confirmed");
            box.close();
        });
        EXPECT_EQ(texts(form, "List_ville"), "towns/towns"); // the name before is used again
    });
}

TEST_F(Form3Test, TakingOutForgetsTheFilesOfEveryKindWithThatName) {
    run([&](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        add(form, "entre_ville", "x");
        add(form, "entre_ville", "y");
        add(form, "entre_port", "x");
        select(form, "List_ville", "x");
        press(form, "sort_ville");
        EXPECT_EQ(texts(form, "List_ville"), "y");
        EXPECT_EQ(texts(form, "List_port"), "x");
    });
    EXPECT_EQ(count(SpriteKind::ville), 1);
    EXPECT_EQ(count(SpriteKind::port), 1);
    EXPECT_EQ(session.graphics.sprites.of(SpriteKind::ville).rows[0].set_name, "y");
    EXPECT_EQ(session.graphics.current_set_name, "x");
    EXPECT_EQ(session.graphics.files.count(), 2);
    ASSERT_EQ(session.graphics.files.saved().size(), 1);
    EXPECT_EQ(session.graphics.files.saved()[0].set_name, "y");
}

TEST_F(Form3Test, TakingOutOfAnEmptyListOnlyLowersTheFilesCount) {
    session.graphics.current_set_name = "before";
    run([](gfx::Form3& form) { press(form, "sort_port"); });
    EXPECT_EQ(session.graphics.files.count(), -1);
    EXPECT_EQ(count(SpriteKind::port), 0);
    EXPECT_EQ(session.graphics.current_set_name, "");
}

TEST_F(Form3Test, TakingOutWithNothingSelectedFails) {
    const LeaksExpected leaks;
    run([&](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        add(form, "entre_ville", "x");
        try {
            press(form, "sort_ville");
            ADD_FAILURE();
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::invalid_procedure_call);
        }
        EXPECT_EQ(texts(form, "List_ville"), "x");
    });
    EXPECT_EQ(count(SpriteKind::ville), 0);
    EXPECT_EQ(session.graphics.files.count(), 0);
}

TEST_F(Form3Test, FolderButtonsOpenTheChooser) {
    folder.write("sub/inner.spr", "");
    const std::string sub = session.configuration.graphics_folder + "\\sub";
    const auto press_ok = [this](gfx::ChooserKind expected) {
        return driver::InDialog("Form4", [this, expected](QDialog& chooser) {
            EXPECT_EQ(session.chooser_kind, expected);
            press(chooser, expected == gfx::ChooserKind::GFX ? "Command1" : "Command2");
        });
    };
    run([&](gfx::Form3& form) {
        session.configuration.graphics_folder = sub;
        const auto graphics = press_ok(gfx::ChooserKind::GFX);
        press(form, "Command2");
        EXPECT_EQ(texts(form, "File1"), "inner.spr");

        const auto terrain_art = press_ok(gfx::ChooserKind::GFX2);
        press(form, "Command1");
        EXPECT_EQ(session.cancelled_flag, 1);
    });
}

TEST_F(Form3Test, WhatLooksSelectedIsSelected) {
    session.graphics.sprites.of(SpriteKind::port).rows[0].set_name = "quay";
    session.graphics.sprites.of(SpriteKind::port).rows[1].set_name = "pier";
    run([](gfx::Form3& form) {
        auto& ports = control<QListWidget>(form, "List_port");
        control<QPushButton>(form, "sort_port").setFocus();
        QTest::keyClick(&form, Qt::Key_Tab);
        ASSERT_TRUE(ports.hasFocus());
        EXPECT_EQ(ports.currentItem(), nullptr) << "nothing is selected";
        QTest::keyClick(&ports, Qt::Key_Down);
        EXPECT_EQ(ports.selectedItems(), QList{ports.item(0)});
        const QPoint place = ports.visualItemRect(ports.item(1)).center();
        for (int times = 0; times < 2; ++times)
            QTest::mouseClick(ports.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
        EXPECT_EQ(ports.currentRow(), 1);
        EXPECT_EQ(ports.selectedItems(), QList{ports.item(1)});
    });
}

TEST_F(Form3Test, EnterPressesTheButtonWithTheFocus) {
    session.graphics.sprites.of(SpriteKind::ville).rows[0].set_name = "towns";
    run([](gfx::Form3& form) {
        select(form, "List_ville", "towns");
        QTest::keyClick(&control<QListWidget>(form, "List_ville"), Qt::Key_Return);
        EXPECT_EQ(texts(form, "List_ville"), "towns") << "no button has the focus";
        control<QPushButton>(form, "sort_ville").setFocus();
        QTest::keyClick(form.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(texts(form, "List_ville"), "");
        control<QPushButton>(form, "Command3").setFocus();
        QTest::keyClick(form.focusWidget(), Qt::Key_Enter);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Form3Test, SetNameThatCannotBeStoredIsRefusedAndEscapeDoesNothing) {
    run([this](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        press_and(form, "entre_ville", [this](QDialog& box) {
            auto& name = control<QLineEdit>(box, "Text1");
            for (const char* refused : {"a\"b", "a\nb", "\xCE\xB1"}) {
                name.selectAll();
                name.insert(QString::fromUtf8(refused));
                EXPECT_EQ(message_during([&] { press(box, "Command1"); }),
                          session.language.text(shell::Text::choice_unstorable));
            }
            QTest::keyClick(&name, Qt::Key_Escape);
            EXPECT_TRUE(box.isVisible());
            name.selectAll();
            name.insert(QString::fromUtf8("e\xCC\x81t\xC3\xA9")); // the first accent on its own
            press(box, "Command1");
        });
        EXPECT_EQ(texts(form, "List_ville"), "\xE9t\xE9");
    });
}

TEST_F(Form3Test, FilesOfAFolderThatCannotBeStoredAreRefused) {
    const QString outside = QString::fromUtf8("\xCE\xB1");
    folder.write(outside + "/one.spr");
    session.configuration.graphics_folder = "c:";
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.native(outside));
    run([this](gfx::Form3& form) {
        select(form, "File1", "one.spr");
        EXPECT_EQ(message_during([&] { press(form, "entre_ville"); }),
                  session.language.text(shell::Text::choice_unstorable));
    });
    QDir::setCurrent(before);
    EXPECT_EQ(session.graphics.files.count(), 0);
}

} // namespace
