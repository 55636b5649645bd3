#include "data/province_file.h"
#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QDir>
#include <QLabel>
#include <QStatusTipEvent>

namespace {

class StartUp : public support::MainFrame {};

TEST_F(StartUp, TheProgramsFolderAndItsFilesMayHaveAnyName) {
    const QString name = QString::fromUtf8("Карты 地図");
    session.program_folder = folder.path(name);
    folder.write(name + "/\u00E9t\u00E9.lng", "\xEF\xBB\xBF" + language_file("french.lng"));
    const std::string configuration = "\"GFX\",\"c:\",0\r\n\"GFX2\",\"c:\",0\r\n"
                                      "\"CSV\",\"c:\\kept.csv\",0\r\n\"CSV2\",\"c:\",0\r\n"
                                      "\"BMP\",\"c:\",0\r\n\"LAN\",\"\xE9t\xE9.lng\",0\r\n";
    folder.write(name + "/config.txt", "\xEF\xBB\xBF" + configuration);
    data::ProvinceTable table;
    table.load(5, {0}, "read");
    const std::string csv = folder.write(name + "/地図.csv", data::write_provinces(table));
    session.maps.map_1_path = session.maps.id_map_path =
        folder.write(name + "/карта.bmp", bitmaps::painted(8, 8, [](int, int) { return 0U; }));

    start();
    EXPECT_EQ(action("fichier").text(), "&Fichier");
    EXPECT_TRUE(action("langues(0)").isChecked());
    EXPECT_EQ(frame->open_province_file(csv).provinces, 2018);
    EXPECT_EQ(cell(5, 1), "read");
    frame->open_maps();
    EXPECT_EQ(control<QWidget>("Form1").parentWidget()->windowTitle(),
              QString::fromUtf8("карта.bmp"));
    select("5");
    enter("nom_province", "changed");
    boxes.answer = QMessageBox::No;
    testing::internal::CaptureStderr();
    ASSERT_TRUE(frame->close());
    const auto told = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_TRUE(told.contains(name + "/recovered.csv")) << told.toStdString();
    EXPECT_EQ(file(name + "/config.txt"), configuration) << "the path that it had is kept";
    EXPECT_NE(file(name + "/recovered.csv").find("\r\n5;changed;"), std::string::npos);
}

TEST_F(StartUp, TheStatusTextIsNeverCovered) {
    start();
    auto& notice = control<QLabel>("notice");
    frame->tell(QString(500, 'x'));
    QStatusTipEvent tip("what a menu item does");
    QApplication::sendEvent(frame.get(), &tip);
    QCoreApplication::processEvents();
    EXPECT_TRUE(control<QLabel>("Bar(1)").isVisible());
    EXPECT_EQ(notice.text(), QString(500, 'x'));

    const QImage painted = notice.grab().toImage();
    frame->tell(QString(500, 'x') + "y");
    EXPECT_NE(notice.grab().toImage(), painted) << "the reason stands at the end";

    auto& time = driver::control<QTimer>(notice, "time");
    EXPECT_NEAR(time.remainingTime(), 15000, 1000);
    time.start(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return notice.text().isEmpty(); }));
}

TEST_F(StartUp, TheSelectionFieldTakesTheFocusFromEverywhere) {
    session.maps.map_1_path = session.maps.id_map_path =
        folder.write("map.bmp", bitmaps::painted(8, 8, [](int, int) { return 0U; }));
    folder.write("config.txt", "");
    start();
    frame->open_maps();
    auto& field = control<QLineEdit>("selection_text");
    const auto reached_from = [&](QWidget& place) {
        place.setFocus();
        EXPECT_TRUE(place.hasFocus());
        QTest::keyClick(&place, Qt::Key_L, Qt::ControlModifier);
        return field.hasFocus();
    };
    EXPECT_TRUE(reached_from(visible("nom_province")));
    EXPECT_TRUE(reached_from(visible("culture")));
    QTest::mouseClick(&control<QWidget>("Picture1"), Qt::LeftButton);
    EXPECT_FALSE(field.hasFocus());
    EXPECT_TRUE(reached_from(*QApplication::focusWidget()));
    QTest::keyClick(frame.get(), Qt::Key_F3);
    ASSERT_FALSE(field.isVisible());
    QTest::keyClick(frame.get(), Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(field.hasFocus()) << "the mode that shows it begins";
    EXPECT_EQ(session.mode, map::Mode::normal);
}

} // namespace
