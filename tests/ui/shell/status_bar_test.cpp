#include "map/mode.h"
#include "shell/qt_texts.h"
#include "support/bitmaps.h"
#include "support/main_frame.h"

#include <QLabel>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QTranslator>

/// What the status bar and Qt's own texts tell.
namespace {

using namespace std::string_literals;

class StatusBar : public support::MainFrame {
  protected:
    /// Starts with maps that provinces 5 and 6 share, left and right.
    void start_in(const std::string& language) {
        folder.write("config.txt", "\"LAN\",\"" + language + "\",0\r\n");
        session.maps.x_offset = 1000.5;
        session.maps.y_offset = -20;
        session.maps.map_1_path = session.maps.id_map_path =
            folder.write("ids.bmp", bitmaps::painted(200, 120, [](int x, int) {
                             return bitmaps::colour_of(x < 100 ? 5 : 2500);
                         }));
        start();
        frame->open_maps();
        QCoreApplication::processEvents();
    }
    std::string told(const std::string& label) const {
        return base::to_bytes(control<QLabel>(label).text());
    }
    void point_at(QPoint point) const {
        QTest::mouseMove(&control<QWidget>("Picture1"), point);
        QCoreApplication::processEvents();
    }
};

TEST_F(StatusBar, TellsHowManyAreSelectedAndWhetherChangesAreUnsaved) {
    start_in("english.lng");
    EXPECT_EQ(told("état"), "No province selected");
    select(QStringLiteral("5"));
    EXPECT_EQ(told("état"), "1 province selected");
    select(QStringLiteral("5-60"));
    enter("nom_province", QStringLiteral("x"));
    EXPECT_EQ(told("état"), "56 provinces selected, unsaved changes");
    save_as(folder.native(QStringLiteral("saved.csv")));
    EXPECT_EQ(told("état"), "56 provinces selected");

    press_key(Qt::Key_F3);
    EXPECT_EQ(told("état"), "1 lacking, 56 provinces selected");
    QTest::mouseClick(&control<QWidget>("Picture1"), Qt::LeftButton, {}, {20, 30});
    EXPECT_EQ(told("état"), "0 lacking, 56 provinces selected, unsaved changes");
    QTest::mouseClick(&control<QWidget>("Picture1"), Qt::RightButton, {}, {20, 30});
    EXPECT_EQ(told("état"), "1 lacking, 56 provinces selected, unsaved changes");
    press_key(Qt::Key_F2);
    EXPECT_EQ(told("état"), "56 provinces selected, unsaved changes");
}

TEST_F(StatusBar, NamesThePointersProvinceAndWhatAClickThereStores) {
    start_in("english.lng");
    load(5, 1, "\xC9vora & <b>");
    point_at({20, 30});
    EXPECT_EQ(told("nom") + " " + told("Bar(2)"), "\xC9vora & <b> (1020.5, 10) id = 5");
    press_key(Qt::Key_F3);
    QTest::mouseClick(&control<QWidget>("Picture1"), Qt::LeftButton, {}, {20, 30});
    EXPECT_EQ(cell(5, 28) + " " + cell(5, 29), "1020.5 10");
    point_at({150, 31});
    EXPECT_EQ(told("nom"), "(1150.5, 11)") << "no province has that identifier";
    EXPECT_EQ(told("Bar(2)"), "id = 2500");
    session.maps.y_offset = -32768;
    point_at({20, -1});
    session.maps.y_offset = 32767;
    point_at({20, 30});
    EXPECT_EQ(told("nom"), "\xC9vora & <b>") << "a click there is an error";
}

TEST_F(StatusBar, WhatItAlwaysToldIsNeverCoveredNorSqueezed) {
    for (const auto* language : {"english.lng", "french.lng"}) {
        start_in(language);
        frame->resize(1280, 720);
        QCoreApplication::processEvents();
        const auto& state = control<QLabel>("état");
        EXPECT_GE(state.width(), state.fontMetrics().horizontalAdvance(state.text()));
        select(QStringLiteral("1-2018"));
        enter("nom_province", QString(100, 'x'));
        frame->tell(QString(500, 'x'));
        for (const Qt::Key mode :
             {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5, Qt::Key_F6, Qt::Key_F7}) {
            press_key(mode);
            point_at({20, 30});
            point_at({21, 30});
            EXPECT_EQ(frame->width(), 1280);
            int right = 0;
            for (const auto* name : {"Bar(1)", "notice", "état", "nom", "Bar(2)"}) {
                const auto& label = control<QLabel>(name);
                EXPECT_GE(label.geometry().left(), right) << name;
                right = label.geometry().right();
                if (name[0] == 'B') {
                    EXPECT_GE(label.width(), label.sizeHint().width()) << name << mode;
                } else {
                    EXPECT_GE(label.width(), 70) << name << mode;
                }
            }
        }
        frame.reset();
    }
}

TEST_F(StatusBar, AnEntryTellsWhatItChanged) {
    start_in("english.lng");
    const auto notice = [this] {
        const std::string text = told("notice");
        frame->tell({});
        return text;
    };
    select(QStringLiteral("5-54"));
    enter("nom_province", QStringLiteral("x"));
    EXPECT_EQ(notice(), "Province name: 50 provinces");
    enter("nom_province", QStringLiteral("x"));
    EXPECT_EQ(notice(), "") << "nothing changed";
    load(7, 1, "other");
    enter("nom_province", QStringLiteral("x"));
    EXPECT_EQ(notice(), "Province name: 1 province");
    load(7, 52, "other");
    select(QStringLiteral("6;7"));
    EXPECT_EQ(notice(), "");
    QTest::mouseClick(&visible("nom_ville"), Qt::LeftButton);
    QTest::keyClick(&visible("nom_ville"), Qt::Key_Tab);
    EXPECT_EQ(notice(), "City name: 1 province") << "passed through";

    const auto semicolon = session.language.text(shell::Text::notice_semicolon);
    const auto lost = session.language.text(shell::Text::notice_outside_code_page);
    enter("rivière1", QStringLiteral("1;2"));
    EXPECT_EQ(notice(), "Adjacent rivers (id) 2: 2 provinces. " + semicolon);
    enter("income", QString::fromUtf8("1Ж;"));
    EXPECT_EQ(notice(), "Income: 2 provinces. " + semicolon + ". " + lost);
    enter("income", QStringLiteral("1?"));
    EXPECT_EQ(notice(), "Income: 2 provinces") << "it was typed so";
    enter("férocité", QString::fromUtf8("1Ж"));
    EXPECT_EQ(notice(), "Native ferocity: 2 provinces. " + lost);

    for (const auto& [control, words] : {std::pair{"religion(3)", "Religion"},
                                         {"océan(0)", "Ice"},
                                         {"tot(1)", "Treaty of Tordesillas"}}) {
        click(control);
        EXPECT_EQ(notice(), words + ": 2 provinces"s);
    }
    click("religion(3)");
    EXPECT_EQ(notice(), "");
    QTest::keyClick(&visible("efficacité_s"), Qt::Key_Right);
    EXPECT_EQ(notice(), "Native efficiency: 2 provinces");
    load(6, 39, "3");
    select(QStringLiteral("6"));
    select(QStringLiteral("6-8"));
    notice();
    click("dessin_c(42)");
    EXPECT_EQ(notice(), "") << "all are empty";
}

TEST_F(StatusBar, QtsOwnTextsSpeakTheLanguage) {
    const QString translations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!QFile::exists(translations + QStringLiteral("/qtbase_fr.qm")))
        GTEST_SKIP() << "Qt's translations are not installed";
    shell::install_qt_texts(shell::LanguageTexts(language_file("french.lng")));
    const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), QStringLiteral("&Oui"));
    EXPECT_EQ(QLineEdit::tr("&Paste"), QStringLiteral("Co&ller"));
    for (auto* translator : QCoreApplication::instance()->findChildren<QTranslator*>())
        delete translator;
    shell::install_qt_texts(shell::LanguageTexts("\"TEXTE_locale\",\"xx\"\r\n"));
    EXPECT_EQ(QLineEdit::tr("&Paste"), QStringLiteral("&Paste"));
}

} // namespace
