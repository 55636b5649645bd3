#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QLabel>

#include <chrono>

/// What settings.ini brings from one run to the next.
namespace {

using data::ErrorNumber;
using shell::Text;

class Settings : public support::MainFrame {
  protected:
    void start_as_left() {
        frame.reset();
        start();
        frame->show_as_left();
    }
    std::string notice() const { return base::to_bytes(control<QLabel>("notice").text()); }

    /// Opens one of the recent menus and returns its items' captions; then clicks on one of them.
    QStringList recent(const std::string& menu, const std::string& item = {}) const {
        choose("fichier", menu);
        auto* recent = action(menu).menu();
        EXPECT_TRUE(QTest::qWaitFor([&] { return recent->isVisible(); }));
        QStringList captions;
        for (const auto* each : recent->actions())
            captions += each->text();
        if (item.empty())
            QTest::keyClick(recent, Qt::Key_Escape);
        else
            QTest::mouseClick(recent, Qt::LeftButton, {},
                              recent->actionGeometry(&action(item)).center());
        while (auto* open = QApplication::activePopupWidget())
            open->close();
        return captions;
    }
    std::string province_file(const QString& name, const char* value) const {
        data::ProvinceTable table;
        table.load(5, {0}, value);
        return folder.write(name, data::write_provinces(table));
    }
};

TEST_F(Settings, CopiesThatAreNewSinceTheLastStartAreTold) {
    const auto told = [this] {
        start_as_left();
        return notice();
    };
    const auto one = [this](const std::string& path) {
        return session.language.text(Text::notice_one_new_copy, {base::shown_path(path)});
    };
    EXPECT_EQ(told(), "");
    const std::string first = folder.write("recovered.csv");
    EXPECT_EQ(told(), one(first));
    EXPECT_EQ(told(), "");
    const std::string second = folder.write("recovered-1.csv");
    EXPECT_EQ(told(), one(second));
    folder.write("recovered.csv", "anew");
    QFile again(folder.native("recovered.csv"));
    ASSERT_TRUE(again.open(QIODevice::ReadWrite));
    again.setFileTime(QDateTime::currentDateTime().addDays(1), QFile::FileModificationTime);
    folder.write("recovered-2.csv");
    EXPECT_EQ(told(),
              session.language.text(Text::notice_new_copies, {"2", base::shown_path(first)}));
    session.unattended = true;
    folder.write("recovered-3.csv");
    EXPECT_NE(told(), "") << "it knows of none that were told";
    session.unattended = false;
    EXPECT_NE(told(), "") << "nor did it note that it told";
}

TEST_F(Settings, TheWindowOpensAsItWasLeft) {
    start_as_left();
    const QRect room = frame->screen()->availableGeometry();
    const QRect place(10, 20, room.width() - 50, room.height() - 80);
    frame->setGeometry(place);
    open_tab(3);
    frame->close();
    start_as_left();
    EXPECT_EQ(frame->geometry(), place);
    EXPECT_EQ(control<QTabBar>("TabStrip1").currentIndex(), 3);

    frame->setGeometry(place.translated(30000, -20000)); // on a screen that is gone by then
    frame->close();
    start_as_left();
    EXPECT_TRUE(room.contains(frame->geometry()));
    frame->showMaximized();
    frame->close();
    start_as_left();
    EXPECT_TRUE(frame->isMaximized());
}

TEST_F(Settings, RecentProvinceFilesAreOpenedAfterTheQuestion) {
    const std::string odd = province_file(QString::fromUtf8("R&D, \"地図\" 100%.csv"), "odd");
    const std::string other = province_file("other.csv", "other");
    start();
    action("fichier").menu()->popup({});
    EXPECT_FALSE(action("fichiers_récents").isEnabled());
    action("fichier").menu()->close();
    for (const auto& path : {other, odd, other})
        frame->open_province_file(path);
    start_as_left();
    boxes.answer = QMessageBox::No;
    const auto captions = recent("fichiers_récents", "fichier_récent(1)");
    EXPECT_EQ(captions.size(), 2);
    EXPECT_TRUE(captions.value(0).startsWith("&1  /"));
    EXPECT_TRUE(captions.value(1).endsWith(QString::fromUtf8("/R&&D, \"地図\" 100%.csv")));
    EXPECT_TRUE(Qt::mightBeRichText(action("fichier_récent(1)").toolTip())) << "its & is escaped";
    EXPECT_EQ(boxes.take_one(),
              "message: " + session.language.message(data::Message::open_question));
    EXPECT_EQ(cell(5, 1), "other");
    boxes.answer = QMessageBox::Yes;
    select("5");
    type("nom_province", "typed"); // and kept: reading writes a copy of what is unsaved
    recent("fichiers_récents", "fichier_récent(1)");
    EXPECT_EQ(cell(5, 1), "odd");
    EXPECT_NE(file("recovered-1.csv").find("\r\n5;typed;"), std::string::npos);
    boxes.take();

    QFile::remove(folder.native("other.csv"));
    recent("fichiers_récents", "fichier_récent(1)");
    const std::string said = boxes.take_one();
    EXPECT_EQ(said.find("run_time_error: "), 0U) << said;
    EXPECT_NE(said.find("other.csv"), std::string::npos) << said;
    EXPECT_TRUE(application.ends.empty());
    EXPECT_EQ(recent("fichiers_récents").size(), 1) << "a file that is gone is no more offered";
    for (int n = 0; n < 10; ++n)
        frame->open_province_file(province_file(QStringLiteral("%1.csv").arg(n), "x"));
    EXPECT_EQ(recent("fichiers_récents").size(), 8);
}

TEST_F(Settings, RecentMapsComeBackTogetherWithTheirOffset) {
    for (const auto* name : {"a&b.bmp", "2.bmp", "id.bmp"})
        folder.write(name, bitmaps::painted(8, 8, [](int, int) { return 0U; }));
    start();
    session.maps = {folder.path("a&b.bmp"), folder.path("2.bmp"), folder.path("id.bmp"), 0.5, -7};
    frame->open_maps();
    session.maps = {folder.path("2.bmp"), "", folder.path("id.bmp"), 0, 0};
    frame->open_maps();
    start_as_left();
    session.maps = {};
    const auto captions = recent("cartes_récentes", "carte_récente(1)");
    EXPECT_EQ(captions.size(), 2);
    EXPECT_TRUE(captions.value(0).startsWith("&1  2.bmp, id.bmp - /"));
    EXPECT_TRUE(captions.value(1).startsWith("&2  a&&b.bmp, 2.bmp, id.bmp (0.5, -7) - /"));
    EXPECT_EQ(control<QWidget>("Form1").parentWidget()->windowTitle(), "a&b.bmp");
    EXPECT_TRUE(action("carte_2").isEnabled());
    EXPECT_EQ(session.maps.x_offset, 0.5);
    EXPECT_EQ(session.maps.y_offset, -7);
    recent("cartes_récentes", "carte_récente(1)");
    EXPECT_EQ(session.maps.map_2_path, "");
    QFile::remove(folder.native("2.bmp"));
    recent("cartes_récentes", "carte_récente(1)");
    EXPECT_EQ(boxes.take_one().find("run_time_error: "), 0U);
    EXPECT_EQ(recent("cartes_récentes").size(), 1);
    EXPECT_TRUE(application.ends.empty());
}

TEST_F(Settings, WhatIsInTheFileOrInItsPlaceEndsNoRun) {
    const std::string path = province_file("a.csv", "a");
    const char* const contents[] = {"\xFF\xFE\x00 [[[\n=\n%%%", "[files]\n1=@Variant(\\x1)\n2=\n",
                                    "[maps]\n1=a, b\n[window]\ngeometry=x\npage=99\n"};
    for (const char* content : contents) {
        folder.write("settings.ini", content);
        start_as_left();
        frame->open_province_file(path);
        EXPECT_TRUE(recent("fichiers_récents").value(0).endsWith("/a.csv")) << content;
        EXPECT_TRUE(frame->close());
        QFile::remove(folder.native("settings.ini"));
    }
    folder.make_folder("settings.ini");
    start_as_left();
    frame->open_province_file(path);
    EXPECT_TRUE(frame->close());
    EXPECT_TRUE(boxes.take().empty());
    EXPECT_TRUE(application.ends.empty());
}

} // namespace
