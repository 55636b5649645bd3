#include "base/stored_path.h"
#include "data/run_time_error.h"
#include "gfx/form4.h"
#include "shell/session.h"
#include "support/dialog_driver.h"
#include "support/folder.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>

namespace {

using driver::control;
using driver::message_during;
using driver::press;
using gfx::ChooserKind;

QStringList texts(const QListWidget& list) {
    QStringList texts;
    for (int row = 0; row < list.count(); ++row)
        texts += list.item(row)->text();
    return texts;
}

QPoint place_of(const QListWidget& list, const QString& text) {
    const auto found = list.findItems(text, Qt::MatchExactly);
    if (found.isEmpty())
        throw std::runtime_error("no item " + text.toStdString());
    return list.visualItemRect(found.last()).center();
}

void click(QListWidget& list, const char* text) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place_of(list, text));
}

void double_click(QListWidget& list, const char* text) {
    click(list, text);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place_of(list, text));
}

class Form4Test : public testing::Test {
  protected:
    Form4Test() {
        session.language = shell::LanguageTexts("\"MENU_FORM4.command1\",\"Choisir\"\r\n"
                                                "\"MENU_Form4.Command2\",\"Quitter\"\r\n"
                                                "\"MESSAGE_mess4\",\"no name\"\r\n");
        for (const char* name : {"b.csv", "A.CSV", "notes.txt", "relief.Bmp", "ship.spr"})
            touch(name);
        QDir(native()).mkpath(QStringLiteral("sub/deep"));
        QDir(native()).mkpath(QStringLiteral("folder.csv"));
        touch("sub/inner.csv");
    }

    QString native() const { return temporary.native("data"); }

    void touch(const QString& name) {
        QDir().mkpath(native());
        QFile file(native() + '/' + name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    /// Returns the stored path of a name in the folder.
    std::string stored(const std::string& name) const {
        return base::stored_path(native()) + "\\" + name;
    }

    std::string& path_of(ChooserKind kind) {
        auto& paths = session.configuration;
        switch (kind) {
        case ChooserKind::GFX:
            return paths.graphics_folder;
        case ChooserKind::GFX2:
            return paths.terrain_art_folder;
        case ChooserKind::CSV:
            return paths.province_file_path;
        case ChooserKind::CSV2:
            return paths.province_save_path;
        case ChooserKind::BMP:
            break;
        }
        return paths.map_bitmap_path;
    }

    void choose(ChooserKind kind, const std::string& path) {
        session.chooser_kind = kind;
        path_of(kind) = path;
    }

    bool run(const std::function<void()>& act) { return driver::run(form, act); }

    QListWidget& folders() { return control<QListWidget>(form, "Dir1"); }
    QListWidget& files() { return control<QListWidget>(form, "File1"); }
    QLineEdit& name() { return control<QLineEdit>(form, "Text1"); }

    support::Folder temporary;
    shell::Session session;
    gfx::Form4 form{session, nullptr};
};

TEST_F(Form4Test, OpensAtThePathOfItsKind) {
    struct Row {
        ChooserKind kind;
        std::string path;
        QStringList files;
        std::string path_after;
    };
    const std::string folder = base::stored_path(native());
    std::string with_slashes = stored("b.csv");
    std::replace(with_slashes.begin(), with_slashes.end(), '\\', '/');
    for (const auto& row : std::vector<Row>{
             {ChooserKind::GFX, folder, {"ship.spr"}, folder},
             {ChooserKind::GFX2, folder, {"relief.Bmp"}, folder},
             {ChooserKind::CSV, stored("b.csv"), {"A.CSV", "b.csv"}, stored("")},
             {ChooserKind::CSV2, stored("b.csv"), {"A.CSV", "b.csv"}, stored("")},
             {ChooserKind::BMP, stored("gone.bmp"), {"relief.Bmp"}, stored("")},
             {ChooserKind::CSV, native().toStdString() + "/b.csv", {"A.CSV", "b.csv"}, stored("")},
             {ChooserKind::CSV, with_slashes, {"A.CSV", "b.csv"}, stored("")},
         }) {
        SCOPED_TRACE(row.path);
        choose(row.kind, row.path);
        session.cancelled_flag = 1;
        EXPECT_TRUE(run([&] {
            EXPECT_EQ(session.cancelled_flag, 0);
            EXPECT_EQ(path_of(row.kind), row.path_after);
            EXPECT_EQ(texts(files()), row.files);
            const auto shown = texts(folders());
            EXPECT_EQ(shown.front(), "c:\\");
            EXPECT_EQ(shown.mid(shown.size() - 4), QStringList({QDir(temporary.native()).dirName(),
                                                                "data", "folder.csv", "sub"}));
            EXPECT_EQ(folders().currentItem()->text(), "data");
            EXPECT_EQ(control<QComboBox>(form, "Drive1").currentText(), "c:");
            EXPECT_EQ(control<QPushButton>(form, "Command1").text(), "Choisir");
            EXPECT_EQ(control<QPushButton>(form, "Command2").text(), "Quitter");
            EXPECT_EQ(form.windowTitle(), "Province Editor");
            press(form, "Command2");
        }));
        EXPECT_EQ(session.cancelled_flag, 1);
        EXPECT_EQ(path_of(row.kind), row.path_after);
    }
}

TEST_F(Form4Test, DriveAloneOpensTheCurrentFolder) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(native());
    choose(ChooserKind::CSV, "c:");
    EXPECT_TRUE(run([&] { double_click(files(), "b.csv"); }));
    EXPECT_EQ(session.configuration.province_file_path, stored("b.csv"));
    choose(ChooserKind::GFX, "c:");
    EXPECT_TRUE(run([&] { press(form, "Command1"); }));
    EXPECT_EQ(session.configuration.graphics_folder, base::stored_path(native()));
    QDir::setCurrent(before);
}

TEST_F(Form4Test, PathWithoutDriveOrFolderIsAnError) {
    const std::vector<std::pair<std::string, std::string>> places = {
        {"", "CSV, \"\""},
        {"q:\\data\\b.csv", "CSV, \"q:\\data\\b.csv\""},
        {"c:\\no such folder\\b.csv", "/no such folder: "},
    };
    for (const auto& [path, place] : places) {
        choose(ChooserKind::CSV, path);
        try {
            form.exec();
            ADD_FAILURE() << path;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::path_not_found);
            EXPECT_NE(error.place().in_english().find(place), std::string::npos) << error.what();
        }
        EXPECT_FALSE(form.isVisible());
    }
}

TEST_F(Form4Test, EveryOtherCloseIsACancel) {
    const std::vector<std::function<void()>> closes = {
        [&] { press(form, "Command2"); },
        [&] { QTest::keyClick(&form, Qt::Key_Escape); },
        [&] { form.close(); },
    };
    for (const auto& close : closes) {
        choose(ChooserKind::CSV, stored("b.csv"));
        EXPECT_TRUE(run([&] {
            click(files(), "A.CSV");
            close();
        }));
        EXPECT_EQ(session.cancelled_flag, 1);
        EXPECT_EQ(session.configuration.province_file_path, stored(""));
    }
}

TEST_F(Form4Test, FileIsChosenByMouseAndKeyboard) {
    const std::vector<std::function<void()>> choices = {
        [&] {
            click(files(), "A.CSV");
            EXPECT_EQ(name().text(), "A.CSV");
            press(form, "Command1");
        },
        [&] { double_click(files(), "A.CSV"); },
        [&] {
            click(folders(), "data");
            QTest::keyClick(&folders(), Qt::Key_Tab);
            ASSERT_EQ(QApplication::focusWidget(), &files());
            QTest::keyClick(&files(), Qt::Key_Down);
            QTest::keyClick(&files(), Qt::Key_Return);
        },
    };
    for (const auto& act : choices) {
        choose(ChooserKind::CSV, stored(""));
        EXPECT_TRUE(run(act));
        EXPECT_EQ(session.cancelled_flag, 0);
        EXPECT_EQ(session.configuration.province_file_path, stored("A.CSV"));
    }
}

TEST_F(Form4Test, NameToSaveUnderGetsItsExtension) {
    const std::vector<std::pair<const char*, std::string>> names = {
        {"new", "new.csv"},
        {"NEW.CSV", "NEW.CSV"},
        {"old.csv.bak", "old.csv.bak"},
        {"sub\\x.y", "sub\\x.y.csv"},
        {"\xC3\xA9t\xC3\xA9", "\xE9t\xE9.csv"},
    };
    for (const auto& row : names) {
        choose(ChooserKind::CSV2, stored("b.csv"));
        EXPECT_TRUE(run([&] {
            ASSERT_EQ(QApplication::focusWidget(), &name());
            name().clear();
            name().insert(QString::fromUtf8(row.first));
            QTest::keyClick(&name(), Qt::Key_Return);
        }));
        EXPECT_EQ(session.cancelled_flag, 0);
        EXPECT_EQ(session.configuration.province_save_path, stored(row.second));
    }
}

TEST_F(Form4Test, SelectedFileReplacesTheTypedName) {
    choose(ChooserKind::CSV2, stored(""));
    EXPECT_TRUE(run([&] {
        click(files(), "b.csv");
        QTest::keyClicks(&name(), "2");
        click(files(), "b.csv");
        EXPECT_EQ(name().text(), "b.csv");
        QTest::keyClick(&files(), Qt::Key_Up);
        EXPECT_EQ(name().text(), "A.CSV");
        double_click(files(), "b.csv");
    }));
    EXPECT_EQ(session.configuration.province_save_path, stored("b.csv"));
}

TEST_F(Form4Test, FolderOpensByDoubleClickAndEnter) {
    choose(ChooserKind::GFX, base::stored_path(native()));
    EXPECT_TRUE(run([&] {
        double_click(folders(), "sub");
        QTest::keyClick(&folders(), Qt::Key_Down);
        QTest::keyClick(&folders(), Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(folders().currentItem()->text(), "deep");
        press(form, "Command1");
    }));
    EXPECT_EQ(session.configuration.graphics_folder, stored("sub\\deep"));

    EXPECT_TRUE(run([&] {
        double_click(folders(), "c:\\");
        press(form, "Command1");
    }));
    EXPECT_EQ(session.configuration.graphics_folder, "c:\\");
}

TEST_F(Form4Test, FilesFollowTheOpenedFolder) {
    choose(ChooserKind::CSV, stored("b.csv"));
    EXPECT_TRUE(run([&] {
        click(files(), "b.csv");
        double_click(folders(), "sub");
        EXPECT_EQ(texts(files()), QStringList("inner.csv"));
        EXPECT_EQ(message_during([&] { press(form, "Command1"); }), "no name");
        EXPECT_TRUE(form.isVisible());
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        EXPECT_EQ(folders().currentItem()->text(), "sub") << "what was chosen stays";
        EXPECT_EQ(session.configuration.province_file_path, stored("sub\\"));
        double_click(files(), "inner.csv");
    }));
    EXPECT_EQ(session.configuration.province_file_path, stored("sub\\inner.csv"));
}

} // namespace
