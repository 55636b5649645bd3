#include "data/run_time_error.h"
#include "gfx/form4.h"
#include "shell/session.h"
#include "support/dialog_driver.h"
#include "support/folder.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>

namespace {

using driver::control;
using driver::message_during;
using driver::press;
using gfx::ChooserKind;

constexpr int step = 12; // pixels by which a level of folders is indented

class Form4Choice : public testing::Test {
  protected:
    Form4Choice() {
        session.language = shell::LanguageTexts("\"MENU_mdiform1.OUVRIR_CSV\",\"A && &B...\"\r\n"
                                                "\"MENU_Form3.Command2\",\"&Sprites...\"\r\n"
                                                "\"MESSAGE_mess4\",\"no name\"\r\n"
                                                "\"MESSAGE_mess5\",\"no art\"\r\n"
                                                "\"TEXTE_choice_unstorable\",\"refused\"\r\n");
        for (const char* name : {"sub/one.spr", ".hidden/x", "two/x", "a.csv", "quoted\".csv"})
            folder.write(name);
        auto& paths = session.configuration;
        for (auto* path : {&paths.graphics_folder, &paths.terrain_art_folder})
            *path = folder.path();
        for (auto* path : {&paths.province_file_path, &paths.province_save_path})
            *path = folder.path("a.csv");
    }
    ~Form4Choice() override { QDir::setCurrent(current_before); }

    bool run(ChooserKind kind, const std::function<void()>& act) {
        session.chooser_kind = kind;
        return driver::run(form, act);
    }
    QListWidget& folders() { return control<QListWidget>(form, "Dir1"); }
    QStringList texts(const char* list) {
        QStringList found;
        for (const auto* item : control<QListWidget>(form, list).findItems("*", Qt::MatchWildcard))
            found += item->text();
        return found;
    }
    QPoint place_of(const char* name) {
        const auto found = folders().findItems(name, Qt::MatchExactly);
        return found.isEmpty() ? QPoint() : folders().visualItemRect(found.last()).center();
    }
    void click(const char* name) {
        QTest::mouseClick(folders().viewport(), Qt::LeftButton, {}, place_of(name));
    }
    void press_enter(bool held = false) {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, {}, QString(), held);
        QApplication::sendEvent(&folders(), &enter);
    }
    /// Returns the message with which a name to save under is refused; "none" when it is taken.
    std::string answer_to(const QString& name) {
        std::string answer;
        run(ChooserKind::CSV2, [&] {
            control<QLineEdit>(form, "Text1").setText({});
            control<QLineEdit>(form, "Text1").insert(name);
            answer = message_during([&] { press(form, "Command1"); });
            EXPECT_EQ(form.isVisible(), answer != "none");
            control<QLineEdit>(form, "Text1").clear(); // as in every new chooser
        });
        return answer;
    }

    support::Folder folder;
    QString current_before = QDir::currentPath();
    shell::Session session;
    gfx::Form4 form{session, nullptr};
};

TEST_F(Form4Choice, HighlightedFolderIsTaken) {
    EXPECT_TRUE(run(ChooserKind::GFX, [&] {
        click("sub");
        press(form, "Command1");
    }));
    EXPECT_EQ(session.configuration.graphics_folder, folder.path("sub"));
    EXPECT_EQ(texts("File1"), QStringList("one.spr"));

    EXPECT_TRUE(run(ChooserKind::GFX, [&] {
        click("c:\\");
        click(QFileInfo(folder.native()).fileName().toLatin1());
        press_enter();
        click("two");
        press_enter();
        press_enter(true);
        EXPECT_TRUE(form.isVisible()) << "a held key does not confirm";
        press_enter();
    }));
    EXPECT_EQ(session.configuration.graphics_folder, folder.path("two"));

    EXPECT_FALSE(run(ChooserKind::CSV, [&] {
        click("sub");
        EXPECT_EQ(message_during([&] { press(form, "Command1"); }), "no name");
        EXPECT_EQ(session.configuration.province_file_path, folder.path() + "\\");
        press_enter();
        press_enter();
    })) << "a folder is no answer where a file is wanted";
}

TEST_F(Form4Choice, TerrainArtIsLookedForInTheHighlightedFolder) {
    for (const char* type : {"desert", "forest", "ice", "marsh", "mountain"}) {
        for (int i = 0; i < 8; ++i)
            folder.write(QStringLiteral("two/%1%2.bmp").arg(type).arg(i));
    }
    const auto confirm = [&](const char* name) {
        std::string message;
        EXPECT_TRUE(run(ChooserKind::GFX2, [&] {
            click(name);
            message = message_during([&] { press(form, "Command1"); });
        }));
        session.configuration.terrain_art_folder = folder.path();
        return message;
    };
    EXPECT_EQ(confirm("two"), "none");
    EXPECT_EQ(session.configuration.terrain_art_flag, 1);
    QFile::remove(folder.native("two/ice7.bmp"));
    folder.make_folder("two/ice7.bmp"); // a folder is no bitmap
    EXPECT_EQ(confirm("two"), "no art");
    EXPECT_EQ(session.configuration.terrain_art_flag, 0);
}

TEST_F(Form4Choice, HiddenFoldersComeLast) {
    for (const char* name : {"\xCE\xB1.csv", "back\\slash.csv", "\xC3\xA9.csv"})
        folder.write(QString::fromUtf8(name));
    run(ChooserKind::CSV, [&] {
        EXPECT_EQ(texts("Dir1").mid(texts("Dir1").size() - 3),
                  QStringList({"sub", "two", ".hidden"}));
        EXPECT_EQ(texts("File1"), QStringList({"a.csv", QString::fromUtf8("\xC3\xA9.csv")}))
            << "the others cannot be stored";
    });
}

TEST_F(Form4Choice, VanishedFolderIsListedAnew) {
    EXPECT_FALSE(run(ChooserKind::GFX, [&] {
        click("sub");
        QDir(folder.native("sub")).removeRecursively();
        press(form, "Command1");
        EXPECT_EQ(texts("Dir1").last(), ".hidden");
        EXPECT_FALSE(texts("Dir1").contains("sub"));
        click("two");
        press_enter();
        QDir(folder.native("two")).removeRecursively();
        press(form, "Command1");
        EXPECT_EQ(folders().currentItem()->text(), QFileInfo(folder.native()).fileName());
    }));
    EXPECT_EQ(session.configuration.graphics_folder, folder.path());
    folder.make_folder("three");
    EXPECT_FALSE(run(ChooserKind::CSV2, [&] {
        click("three");
        press_enter();
        QDir(folder.native("three")).removeRecursively();
        QTest::keyClicks(&control<QLineEdit>(form, "Text1"), "x");
        press(form, "Command1");
    }));
}

TEST_F(Form4Choice, DeletedCurrentFolderIsAMissingFolder) {
    folder.make_folder("gone");
    QDir::setCurrent(folder.native("gone"));
    ASSERT_TRUE(QDir(folder.native()).rmdir("gone"));
    session.configuration.province_save_path = "c:";
    session.chooser_kind = ChooserKind::CSV2;
    try {
        form.exec();
        ADD_FAILURE();
    } catch (const data::RunTimeError& error) {
        EXPECT_EQ(error.number(), data::ErrorNumber::path_not_found);
    }
}

TEST_F(Form4Choice, DeepFoldersStayVisible) {
    QString deep;
    for (int level = 0; level < 40; ++level)
        deep += QStringLiteral("d/");
    folder.make_folder(deep + "inner");
    session.configuration.graphics_folder = folder.path(deep);
    run(ChooserKind::GFX, [&] {
        for (const char* name : {"d", "inner"}) {
            const QString shown = folders().currentItem()->text();
            EXPECT_EQ(shown, name);
            const QRect item = folders().visualItemRect(folders().currentItem());
            const int left = item.left() + folders().currentRow() * step;
            EXPECT_GE(left, 0);
            EXPECT_LE(left + folders().fontMetrics().horizontalAdvance(shown),
                      folders().viewport()->width());
            QTest::keyClick(&folders(), Qt::Key_Down);
        }
    });
}

TEST_F(Form4Choice, FullPathIsTakenAsItIs) {
    const std::string elsewhere = folder.path("sub");
    const std::vector<std::pair<QString, std::string>> names = {
        {folder.native("sub/x"), elsewhere + "\\x.csv"},
        {folder.native("sub/X.CSV"), elsewhere + "\\X.CSV"},
        {base::to_qstring(elsewhere) + "\\x", elsewhere + "\\x.csv"},
        {QString::fromUtf8("e\xCC\x81"), folder.path() + "\\\xE9.csv"}, // composed
    };
    for (const auto& [name, path] : names) {
        EXPECT_EQ(answer_to(name), "none");
        EXPECT_EQ(session.configuration.province_save_path, path);
        session.configuration.province_save_path = folder.path("a.csv");
    }
}

TEST_F(Form4Choice, WhatCannotBeStoredIsRefused) {
    const QString outside = QString::fromUtf8("\xCE\xB1");
    for (const QString& name :
         {QString("a\"b"), outside, folder.native("a\\b"), folder.native(outside)}) {
        EXPECT_EQ(answer_to(name), "refused") << name.toStdString();
        EXPECT_EQ(session.configuration.province_save_path, folder.path() + "\\");
    }

    folder.write(outside + "/b.csv");
    QDir::setCurrent(folder.native(outside));
    for (const auto kind : {ChooserKind::GFX, ChooserKind::GFX2, ChooserKind::CSV}) {
        session.configuration = {};
        EXPECT_FALSE(run(
            kind, [&] { EXPECT_EQ(message_during([&] { press(form, "Command1"); }), "refused"); }));
        EXPECT_EQ(session.configuration.graphics_folder, "c:");
        EXPECT_EQ(session.configuration.terrain_art_folder, "c:");
        EXPECT_EQ(session.configuration.province_file_path, "c:");
    }
}

TEST_F(Form4Choice, HeadingTellsWhatIsWantedAndWhatIsShown) {
    for (const auto& [kind, wanted, pattern] :
         std::vector<std::tuple<ChooserKind, const char*, const char*>>{
             {ChooserKind::CSV, "A & B", "*.csv"},
             {ChooserKind::CSV2, "Save province file", "*.csv"},
             {ChooserKind::GFX, "Sprites", "*.spr"},
             {ChooserKind::GFX2, "Terrain art folder", "*.bmp"}}) {
        run(kind, [&, wanted = wanted, pattern = pattern] {
            EXPECT_EQ(control<QLabel>(form, "Label1").text(), wanted);
            EXPECT_EQ(control<QLabel>(form, "Label2").text(), folder.native(pattern));
            click("sub");
            press_enter();
            EXPECT_EQ(control<QLabel>(form, "Label2").text(), folder.native("sub/") + pattern);
        });
    }
}

} // namespace
