#include "data/province_file.h"
#include "support/main_frame.h"

#include <QLabel>
#include <QScreen>
#include <QTableView>

#include <gtest/gtest.h>
#include <string>

/// What saving, opening and the dialogs about copies, changes and problems do to the file and the
/// table.
namespace {

using Qt::Key_Return;

class FileCommands : public support::MainFrame {
  protected:
    FileCommands() {
        data::ProvinceTable table;
        for (int province = 1; province <= data::last_province; ++province)
            table.load(province, {0}, "file");
        folder.write("x.csv", data::write_provinces(table));
    }
    void open_file() {
        boxes.answer = QMessageBox::Yes;
        in_dialog("Form4", [](QDialog& chooser) {
            QTest::keyClick(&driver::control<QWidget>(chooser, "File1"), Qt::Key_Down);
            QTest::keyClick(&driver::control<QWidget>(chooser, "File1"), Qt::Key_Return);
            if (chooser.isVisible())
                driver::press(chooser, "Command1");
        });
        session.configuration.province_file_path = folder.path("x.csv");
        press_key(Qt::Key_O, Qt::ControlModifier);
        boxes.take();
    }
    void rename(const QString& provinces, const QString& name) {
        select(provinces);
        enter("nom_province", name);
    }
    std::string notice() const { return control<QLabel>("notice").text().toStdString(); }
    template <class Window = QDialog>
    Window& dialog(const char* name) const {
        auto* found = frame->findChild<Window*>(QString::fromUtf8(name));
        if (found == nullptr)
            throw std::runtime_error(std::string("no dialog ") + name);
        return *found;
    }
    static std::string text(const QTableView& list, int row, int column) {
        return list.model()->index(row, column).data().toString().toStdString();
    }
    std::string name_of(int province, const QString& file_name) const {
        data::ProvinceTable table;
        data::read_provinces(folder.read(file_name), table);
        return table.cell(province, {0});
    }
};

TEST_F(FileCommands, SaveAgainAsksOnceAndKeepsWhatItReplaces) {
    start();
    open_file();
    session.configuration.province_save_path = folder.path("x.csv");
    rename("5", "first");
    in_dialog("Form4", [](QDialog& chooser) {
        QTest::keyClicks(&driver::control<QLineEdit>(chooser, "Text1"), "x");
        driver::press(chooser, "Command1");
    });
    press_key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(name_of(5, "x.csv"), "first");
    rename("5", "second");
    press_key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(name_of(5, "x.csv"), "second");
    EXPECT_NE(notice().find("x.csv"), std::string::npos);
    EXPECT_FALSE(session.provinces.has_unsaved_changes());
    const auto backups = QDir(folder.native("backups")).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(backups.size(), 2);
    EXPECT_EQ(name_of(5, "backups/" + backups[0]), "file");
    EXPECT_EQ(name_of(5, "backups/" + backups[1]), "first");

    open_file();
    rename("5", "third");
    in_dialog("Form4", [](QDialog& chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); });
    press_key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(name_of(5, "x.csv"), "second") << "another file was read: it asks again";
}

TEST_F(FileCommands, OpeningOverUnsavedChangesKeepsTwoCopies) {
    start();
    rename("5", "unsaved");
    type("nom_province", "typed");
    open_file();
    EXPECT_EQ(name_of(5, "recovered-1.csv"), "typed") << "beside the run's own";
    EXPECT_EQ(cell(5, 1), "file");
    application.copies().update();
    EXPECT_FALSE(folder.has("recovered.csv")) << "nothing is unsaved any more";
    EXPECT_TRUE(folder.has("recovered-1.csv"));
}

TEST_F(FileCommands, ACopyIsOpenedAndItsChangesPutBack) {
    data::ProvinceTable table;
    data::read_provinces(folder.read("x.csv"), table);
    table.write(5, {0}, "kept");
    table.write(7, {0}, "kept");
    start();
    open_file();
    folder.write("recovered.csv", data::write_provinces(table));
    folder.write("recovered-1.csv", "5;too short\r\n");
    in_dialog("Form_copies", [](QDialog& copies) {
        auto& list = driver::control<QTableView>(copies, "copies");
        ASSERT_EQ(list.model()->rowCount(), 2);
        const int good = text(list, 0, 3) == "2" ? 0 : 1;
        EXPECT_EQ(text(list, good, 3), "2");
        EXPECT_EQ(text(list, 1 - good, 3), "cannot be read");
        if (good == 1)
            QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Key_Return);
    });
    choose("fichier", "récupérer");
    EXPECT_EQ(cell(5, 1) + cell(6, 1) + cell(7, 1), "keptfilekept");
    EXPECT_EQ(session.provinces.changes().size(), 2U);

    select("7");
    press_key(Qt::Key_D, Qt::ControlModifier);
    auto& list = dialog<QTableView>("modifications_list");
    ASSERT_EQ(list.model()->rowCount(), 2);
    EXPECT_EQ(text(list, 1, 0) + text(list, 1, 3) + text(list, 1, 4), "7filekept");
    QTest::keyClick(&list, Qt::Key_Down);
    driver::press(dialog("Form_modifications"), "put_back");
    EXPECT_EQ(cell(5, 1) + cell(7, 1), "keptfile");
    EXPECT_EQ(control<QLineEdit>("nom_province").text(), "file") << "shown anew";
    EXPECT_EQ(list.model()->rowCount(), 1);
    QTest::keyClick(&list, Key_Return);
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "5");
}

TEST_F(FileCommands, ProblemsAreListedAndLeadToTheirProvince) {
    folder.write("config.txt", "\"LAN\",\"french.lng\",0\r\n");
    start();
    open_file();
    rename("5", "fine");
    load(7, 24, "9");
    load(7, 2, std::string(300, 'x'));
    press_key(Qt::Key_K, Qt::ControlModifier);
    auto& list = dialog<QTableView>("problèmes");
    ASSERT_EQ(list.model()->rowCount(), 2);
    EXPECT_TRUE(text(list, 0, 3).starts_with("remarque : ")) << text(list, 0, 3);
    EXPECT_EQ(text(list, 1, 0) + " " + text(list, 1, 2), "7 9");
    EXPECT_LE(list.window()->width(), list.screen()->availableSize().width());
    QTest::keyClick(&list, Key_Return);
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "7");
    load(7, 24, "5");
    load(7, 2, "coastal");
    driver::press(dialog("Form_contrôle"), "refresh");
    EXPECT_EQ(list.model()->rowCount(), 0);
}

TEST_F(FileCommands, TheNoticeTellsOfFilesThatAreNotWhatTheySeem) {
    start();
    open_file();
    folder.write("x.csv", "changed by another program");
    QApplication::setActiveWindow(nullptr);
    come_back();
    QCoreApplication::processEvents();
    EXPECT_NE(notice().find("Another program has changed"), std::string::npos) << notice();

    std::string bytes = data::write_provinces(session.provinces);
    for (std::size_t at = 0; (at = bytes.find("\r\n", at)) != std::string::npos;)
        bytes.erase(at, 1);
    frame->open_province_file(folder.write("feeds.csv", bytes));
    control<QLabel>("notice").findChild<QTimer*>("time")->stop();
    frame->open_province_file(folder.path("feeds.csv"));
    EXPECT_NE(notice().find("No province was found"), std::string::npos) << notice();
}

TEST_F(FileCommands, TheLastQuestionHasNoWayAround) {
    boxes.answer = QMessageBox::No;
    start();
    session.maps.id_map_path = "c:\\some.bmp";
    boxes.before_answer = [](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        box.close();
        EXPECT_TRUE(box.isVisible());
    };
    press_key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(boxes.take().size(), 1U);
    EXPECT_FALSE(frame->isVisible());
}

} // namespace
