#include "support/main_frame.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QUrl>

namespace {

/// Files that another program drops onto the main frame, and its invitation to do so.
class Drop : public support::MainFrame {
  protected:
    Drop() { start(); }

    /// Drags the folder's files onto a part of the frame and lets go there. Returns whether they
    /// were taken.
    bool drop(const QStringList& names, const char* onto = "mdi_area") {
        QMimeData data;
        QList<QUrl> urls;
        QString text;
        for (const auto& name : names) {
            urls += name.contains(':') ? QUrl(name) : QUrl::fromLocalFile(folder.native(name));
            text += urls.last().toString() + "\r\n";
        }
        data.setUrls(urls);
        data.setText(text);
        auto& target = visible(onto);
        const QPoint middle = target.rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent let_go(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        let_go.ignore();
        QApplication::sendEvent(&target, &let_go);
        EXPECT_EQ(let_go.dropAction(), Qt::CopyAction);
        QCoreApplication::processEvents();
        return let_go.isAccepted();
    }
};

TEST_F(Drop, BitmapsFillTheMapFilesDialog) {
    session.maps = {"1", "2", "3", 10, 20};
    const struct {
        QStringList files;
        const char* fields; // map 1, map 2, ID map
    } rows[] = {
        {{"relief.bmp"}, "relief.bmp 2 3"},
        {{"map_id.bmp"}, "1 2 map_id.bmp"},
        {{"x.bmp", "y.BMP"}, "x.bmp 2 y.BMP"},
        {{"x.bmp", "y.BMP", "relief.bmp"}, "x.bmp y.BMP relief.bmp"},
        {{"IDmap.bmp", "map2.bmp", "map1.bmp"}, "map1.bmp map2.bmp IDmap.bmp"},
        {{"map_id.bmp", "x.bmp"}, "x.bmp 2 map_id.bmp"},
        {{"map_id.bmp", "x.bmp", "y.BMP"}, "x.bmp y.BMP map_id.bmp"},
        {{"island.bmp", "map2.bmp"}, "island.bmp map2.bmp 3"},
    };
    for (const auto& row : rows) {
        for (const auto& file : row.files)
            folder.write(file);
        QString fields;
        in_dialog("Form2", [&](QDialog& dialog) {
            for (const char* name : {"Text1(0)", "Text1(1)", "Text1(2)"})
                fields += ' ' + driver::control<QLineEdit>(dialog, name).text().section('\\', -1);
            EXPECT_EQ(driver::control<QLineEdit>(dialog, "Text4").text(), "20");
            dialog.close();
        });
        EXPECT_TRUE(drop(row.files));
        EXPECT_EQ(fields.trimmed().toStdString(), row.fields);
    }
    EXPECT_EQ(session.maps.map_1_path, "1") << "the dialog was closed";
}

TEST_F(Drop, AProvinceFileIsAskedForAndWhateverElseIsRefused) {
    data::ProvinceTable table;
    table.load(5, {0}, "dropped");
    folder.write("a.CSV", data::write_provinces(table));
    folder.write("b.csv");
    folder.write("a.txt");
    for (const char* name : {"1.bmp", "2.bmp", "3.bmp", "4.bmp"})
        folder.write(name);
    for (const QStringList& refused : {QStringList{},
                                       {"a.txt"},
                                       {"a.CSV", "b.csv"},
                                       {"a.CSV", "a.txt"},
                                       {"absent.csv"},
                                       {"."},
                                       {"http://example.invalid/a.csv"},
                                       {"1.bmp", "2.bmp", "3.bmp", "4.bmp"}})
        EXPECT_FALSE(drop(refused)) << refused.join(' ').toStdString();
    boxes.answer = QMessageBox::No;
    EXPECT_TRUE(drop({"a.CSV"}));
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::open_question));
    EXPECT_EQ(cell(5, 1), "");
    boxes.answer = QMessageBox::Yes;
    select("5");
    EXPECT_TRUE(drop({"a.CSV"}, "nom_province"));
    EXPECT_EQ(cell(5, 1), "dropped") << "and not its path, which the field would have taken";
}

TEST_F(Drop, TheEmptyWorkspaceLeadsToBothCommands) {
    auto& invitation = control<QLabel>("invitation");
    EXPECT_TRUE(invitation.isVisible());
    std::string opened;
    const auto follow = [&](int link, const char* dialog_name) {
        visible("selection_text").setFocus();
        invitation.setFocus(Qt::TabFocusReason);
        for (int n = 0; n < link; ++n)
            QTest::keyClick(&invitation, Qt::Key_Tab);
        in_dialog(dialog_name, [&](QDialog& dialog) {
            opened += dialog.objectName().toStdString() + ' ';
            dialog.close();
        });
        QTest::keyClick(&invitation, Qt::Key_Return);
    };
    boxes.answer = QMessageBox::Yes;
    follow(0, "Form2");
    follow(1, "Form4");
    EXPECT_EQ(opened, "Form2 Form4 ");
    EXPECT_TRUE(invitation.isVisible());
    frame->open_province_file(folder.write("none.csv", "Id;Name\r\n"));
    EXPECT_TRUE(invitation.isVisible()) << "nothing was in it";
    data::ProvinceTable table;
    frame->open_province_file(folder.write("a.csv", data::write_provinces(table)));
    EXPECT_FALSE(invitation.isVisible());

    session.provinces = {};
    session.maps.map_1_path = session.maps.id_map_path = folder.write("1.bmp");
    start();
    EXPECT_FALSE(control<QLabel>("invitation").isVisible());
}

} // namespace
