#include "data/province_file.h"
#include "sample.h"
#include "shell/menus.h"
#include "support/bitmaps.h"
#include "support/leaks.h"
#include "support/main_frame.h"

#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <map>
#include <set>

namespace {

using base::to_qstring;

constexpr const char* position_items[] = {"ville_menu", "armées_menu", "manuf_menu", "port_menu",
                                          "dessin_menu"};
constexpr const char* map_items[] = {"carte_1", "carte_2", "carte_id", "normal", "saisie"};

class MDIForm1 : public support::MainFrame {
  protected:
    void close() const {
        ASSERT_TRUE(frame->close());
        EXPECT_TRUE(application.ends.empty());
    }
    QString caption(const std::string& item) const { return action(item).text(); }

    /// Opens a small map whose every point belongs to province 5.
    void open_maps() {
        const auto province = bitmaps::colour_of(5);
        const auto image = bitmaps::painted(64, 64, [=](int, int) { return province; });
        folder.write("map.bmp", image);
        MainFrame::open_maps("map.bmp", "", "map.bmp");
    }
};

TEST_F(MDIForm1, FirstRun) {
    start();
    for (const char* item : position_items)
        EXPECT_FALSE(action(item).isEnabled()) << item;
    for (const char* item : map_items)
        EXPECT_FALSE(action(item).isEnabled()) << item;
    EXPECT_EQ(caption("fichier"), "&File");
    EXPECT_TRUE(action("langues(0)").isChecked());
    EXPECT_FALSE(action("langues(1)").isChecked());
    EXPECT_TRUE(action("normal").isChecked());
    EXPECT_EQ(frame->windowTitle(), "Province Editor");
    EXPECT_EQ(control<QLabel>("Bar(1)").text(), to_qstring(session.language.status(1)));
    EXPECT_TRUE(control<QLineEdit>("nom_province").isVisible());
    choose("fichier", "quitter");
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(file("config.txt"), "\"GFX\",\"c:\",0\r\n"
                                  "\"GFX2\",\"c:\",0\r\n"
                                  "\"CSV\",\"c:\",0\r\n"
                                  "\"CSV2\",\"c:\",0\r\n"
                                  "\"BMP\",\"c:\",0\r\n"
                                  "\"LAN\",\"english.lng\",0\r\n");
    EXPECT_TRUE(boxes.take().empty());
    EXPECT_FALSE(folder.has("recovered.csv"));
}

TEST_F(MDIForm1, LaterRunsRememberWhatTheFileHolds) {
    const std::string configuration = "\"GFX\",\"c:\\one\",0\r\n"
                                      "\"GFX2\",\"c:\\two, too\",1\r\n"
                                      "\"CSV\",\"c:\\three.csv\",0\r\n"
                                      "\"CSV2\",\"c:\\four.csv\",0\r\n"
                                      "\"BMP\",\"c:\\f\xFCnf.bmp\",0\r\n"
                                      "\"LAN\",\"french.lng\",0\r\n";
    std::string in_lower_case = configuration;
    for (const char* key : {"GFX", "GFX2", "CSV", "CSV2", "BMP", "LAN"}) {
        const auto at = in_lower_case.find('"' + std::string(key) + '"');
        for (std::size_t n = 1; in_lower_case[at + n] != '"'; ++n)
            in_lower_case[at + n] |= 0x20;
    }
    folder.write("config.txt", in_lower_case);
    start();
    EXPECT_EQ(caption("fichier"), "&Fichier");
    EXPECT_TRUE(action("langues(1)").isChecked());
    for (const char* item : position_items)
        EXPECT_TRUE(action(item).isEnabled()) << item;
    EXPECT_TRUE(action("dessin_graph").isEnabled());
    close();
    EXPECT_EQ(file("config.txt"), configuration);
}

TEST_F(MDIForm1, LanguageMenu) {
    for (const char* name : {"Zulu.lng", "fr.v2.lng", "german.LNG", "a&b.lng", "lng", "notes.txt",
                             "c.lng", "d.lng", "e.lng", "f.lng", "g.lng", "h.lng", "y.lng"})
        folder.write(QLatin1String(name), "");
    start();
    QStringList offered;
    for (const auto* item : action("langue").menu()->actions())
        offered += item->text();
    EXPECT_EQ(offered.join(' ').toStdString(), "a&&b c d e english f french g german h");

    choose("langue", "langues(8)");
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].name, "message");
    EXPECT_EQ(seen[0].text, session.language.message(data::Message::language_notice));
    EXPECT_TRUE(action("langues(4)").isChecked()) << "the mark does not move";
    EXPECT_FALSE(action("langues(8)").isChecked());
    EXPECT_EQ(caption("fichier"), "&File");
    close();
    EXPECT_NE(file("config.txt").find("\"LAN\",\"german.lng\",0\r\n"), std::string::npos);
    frame.reset();
    start(); // german.lng is found as german.LNG
    EXPECT_TRUE(action("langues(8)").isChecked());
    EXPECT_EQ(caption("fichier"), "&Fichier") << "an empty language file: as designed";
}

/// Returns every caption of the frame and its menus.
std::multiset<QString> captions(const QWidget& frame) {
    std::multiset<QString> found;
    for (const auto* action : frame.findChildren<QAction*>()) {
        if (!action->objectName().startsWith("colorer(")) // they repeat the panel's captions
            found.insert(action->text());
    }
    for (const auto* label : frame.findChildren<QLabel*>())
        found.insert(label->text());
    for (const auto* box : frame.findChildren<QGroupBox*>())
        found.insert(box->title());
    for (const auto* button : frame.findChildren<QAbstractButton*>())
        found.insert(button->text());
    const auto* tabs = frame.findChild<QTabBar*>();
    for (int tab = 0; tab < tabs->count(); ++tab)
        found.insert(tabs->tabText(tab));
    return found;
}

TEST_F(MDIForm1, EveryCaptionOfTheLanguageIsShown) {
    // Each text is its own key, so that each can be told from the others.
    std::string bytes;
    std::map<std::string, int> expected;
    for (const auto& list : shell::value_lists) {
        const shell::LanguageTexts english(language_file("english.lng"));
        for (const auto& entry : english.list(list.prefix)) {
            const std::string key = std::string(list.prefix) + entry.code;
            bytes += '"' + key + "\",\"" + key + "\"\r\n";
            const bool elsewhere = list.prefix.starts_with("MESS") || key == "MENU_about" ||
                                   key.starts_with("MENU_Form") || list.capacity > 50;
            if (!elsewhere || key.starts_with("MENU_MDIForm1."))
                expected[key] = list.prefix == "DC_" ? 2 : 1;
        }
    }
    folder.write("english.lng", bytes);
    start();
    const auto found = captions(*frame);
    EXPECT_GT(expected.size(), 150U);
    for (const auto& [key, times] : expected)
        EXPECT_EQ(found.count(to_qstring(key)), static_cast<std::size_t>(times)) << key;
}

TEST_F(MDIForm1, MnemonicsAndShortcutsAreUnique) {
    for (const char* language : {"english.lng", "french.lng"}) {
        frame.reset();
        session.configuration.language_file = language;
        start();
        const auto add = [&](std::set<QString>& taken, const QString& caption) {
            const QString key = QKeySequence::mnemonic(caption).toString();
            EXPECT_TRUE(key.isEmpty() || taken.insert(key).second)
                << language << ": " << caption.toStdString();
        };
        for (auto* menu : frame->findChildren<QMenu*>()) {
            std::set<QString> of_menu;
            for (auto* item : menu->actions())
                add(of_menu, item->text());
        }
        std::set<QString> shortcuts;
        for (auto* item : frame->findChildren<QAction*>()) {
            for (const auto& keys : item->shortcuts())
                EXPECT_TRUE(shortcuts.insert(keys.toString()).second) << item->text().toStdString();
        }
    }
}

TEST_F(MDIForm1, OpeningAsksFirstAndNoIsTheDefault) {
    folder.write("one.csv", data::write_provinces(session.provinces));
    start();
    const std::string path = session.configuration.province_file_path;
    QTest::keyClick(frame.get(), Qt::Key_O, Qt::ControlModifier);
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, session.language.message(data::Message::open_question));
    EXPECT_EQ(seen[0].preset, QMessageBox::No);
    EXPECT_EQ(session.configuration.province_file_path, path) << "no chooser was opened";
}

TEST_F(MDIForm1, ClosingAsksOnlyWhenMapsAreOpen) {
    start();
    load(5, 1, "old");
    select("5");
    type("nom_province", "typed and not left");
    QApplication::setActiveWindow(nullptr); // closed from outside while another program is used
    close();
    EXPECT_TRUE(boxes.take().empty());
    EXPECT_NE(file("recovered.csv").find("\r\n5;typed and not left;"), std::string::npos);
    frame.reset();

    start();
    open_maps();
    enter("nom_province", "saved");
    boxes.answer = QMessageBox::Yes;
    in_dialog("Form4", [](QDialog& chooser) {
        QTest::keyClicks(&driver::control<QLineEdit>(chooser, "Text1"), "last");
        driver::press(chooser, "Command1");
    });
    session.configuration.province_save_path = folder.path("x.csv");
    QFile::remove(folder.native("recovered.csv"));
    close();
    const auto seen = boxes.take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, session.language.message(data::Message::save_question));
    EXPECT_EQ(seen[0].preset, QMessageBox::Yes);
    EXPECT_NE(file("last.csv").find("\r\n5;saved;"), std::string::npos);
    EXPECT_FALSE(folder.has("recovered.csv")) << "all is saved";
    EXPECT_NE(file("config.txt").find("last.csv"), std::string::npos);
    frame.reset();

    start();
    open_maps();
    enter("nom_province", "answered with No");
    boxes.answer = QMessageBox::No;
    close();
    EXPECT_EQ(boxes.take().size(), 1U);
    EXPECT_NE(file("recovered.csv").find("\r\n5;answered with No;"), std::string::npos);
    frame.reset();
    application.copies().let_go();

    start();
    session.maps = {};
    select("5");
    enter("nom_province", "newer");
    close();
    EXPECT_NE(file("recovered.csv").find("\r\n5;answered with No;"), std::string::npos);
    EXPECT_NE(file("recovered-1.csv").find("\r\n5;newer;"), std::string::npos);
}

TEST_F(MDIForm1, TheMapTakesTheFocusWhenPressed) {
    start();
    open_maps();
    for (const char* item : {"carte_1", "carte_id", "normal", "saisie"})
        EXPECT_TRUE(action(item).isEnabled()) << item;
    EXPECT_FALSE(action("carte_2").isEnabled());
    load(5, 1, "five");
    select("6");
    type("nom_province", "six");
    click("Picture1");
    EXPECT_EQ(cell(6, 1), "six") << "the text belongs to what was selected while it was typed";
    EXPECT_EQ(cell(5, 1), "five");
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "5");
    EXPECT_EQ(control<QLineEdit>("nom_province").text(), "five");
    QTest::mouseClick(&control<QWidget>("Picture1"), Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(control<QLineEdit>("selection_text").text(), "5;5");

    QTest::keyClick(frame.get(), Qt::Key_F3);
    EXPECT_EQ(session.mode, map::Mode::normal) << "no city set is loaded";
    EXPECT_TRUE(control<QWidget>("panneau").isVisible());
}

TEST_F(MDIForm1, ErrorsInACommandEndTheProgramAndLoseNothing) {
    const LeaksExpected leaks;
    QDir(folder.native({})).mkdir("taken.csv");
    session.configuration.province_save_path = folder.path("x.csv");
    start();
    select("7");
    type("nom_ville", to_qstring("M\xFCnchen"));
    testing::internal::CaptureStderr();
    save_as("taken");
    const std::string errors = testing::internal::GetCapturedStderr();
    EXPECT_EQ(application.ends, std::vector{EXIT_FAILURE});
    const std::string seen = boxes.take_one();
    EXPECT_TRUE(seen.starts_with("run_time_error: ")) << seen;
    for (const char* part : {"75", "taken.csv", "recovered.csv"}) {
        EXPECT_NE(seen.find(part), std::string::npos) << seen;
        EXPECT_NE(errors.find(part), std::string::npos) << "nobody sees this screen: " << errors;
    }
    data::ProvinceTable recovered;
    data::read_provinces(file("recovered.csv"), recovered);
    EXPECT_EQ(recovered.cell(7, {51}), "M\xFCnchen");
}

using Lines = std::vector<std::vector<std::string>>;

Lines fields_of(const std::string& bytes) {
    Lines lines{{""}};
    for (const char character : bytes) {
        if (character == '\n')
            lines.emplace_back(1);
        else if (character == ';')
            lines.back().emplace_back();
        else if (character != '\r')
            lines.back().back() += character;
    }
    return lines;
}

TEST_F(MDIForm1, OpenSelectChangeAndSave) {
    const std::filesystem::path folder_path = folder.native({}).toStdString();
    sample::make_sample({folder_path, LANGUAGES_FOLDER, {400, 200}});
    folder.write("config.txt", "\"CSV\"," + ('"' + folder.path("x.csv") + '"') +
                                   ",0\r\n\"CSV2\",\"" + folder.path("x.csv") + "\",0\r\n");
    start();
    select("5");
    click("nom_ville"); // shows what the file is about to replace
    boxes.answer = QMessageBox::Yes;
    in_dialog("Form4", [](QDialog& chooser) {
        auto& files = driver::control<QListWidget>(chooser, "File1");
        const auto items = files.findItems("Province.csv", Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        QTest::mouseClick(files.viewport(), Qt::LeftButton, {},
                          files.visualItemRect(items[0]).center());
        driver::press(chooser, "Command1");
    });
    choose("fichier", "ouvrir_csv");
    EXPECT_EQ(boxes.take().size(), 1U);
    select("5-7;2018");

    std::map<int, std::string> changed; // file column and text
    enter("nom_province", to_qstring("\xCEle"));
    changed[2] = "\xCEle";
    click("religion(5)");
    changed[4] = "orthodox";
    click("production(1)");
    changed[20] = "gold";
    changed[18] = "1";
    enter("efficacité", "1,5");
    changed[26] = "1.5";
    click("tot(2)");
    changed[15] = "1";
    changed[16] = "0";
    QTest::keyClick(&visible("férocité_s"), Qt::Key_Home);
    QTest::keyClick(&visible("férocité_s"), Qt::Key_End);
    changed[25] = "5";
    type("mine", "12"); // saved though the field is not left
    changed[19] = "12";
    save_as("changed");

    const std::string before = file("Province.csv");
    const std::string after = file("changed.csv");
    const Lines old_lines = fields_of(before);
    const Lines new_lines = fields_of(after);
    ASSERT_EQ(new_lines.size(), 2022U); // the last one ends as well
    ASSERT_EQ(old_lines.size(), new_lines.size());
    const std::set<std::string> selected{"5", "6", "7", "2018"};
    for (std::size_t line = 0; line + 1 < new_lines.size(); ++line) {
        const auto& was = old_lines[line];
        const auto& is = new_lines[line];
        ASSERT_EQ(is.size(), 59U) << line;
        for (std::size_t column = 1; column <= is.size(); ++column) {
            std::string expected = was[column - 1];
            const auto change = changed.find(static_cast<int>(column));
            if (selected.contains(was[0]) && change != changed.end())
                expected = change->second;
            if (line > 1 && line < 2020 && column >= 57)
                expected = column == 57 ? "" : "0";
            EXPECT_EQ(is[column - 1], expected) << "line " << line + 1 << ", column " << column;
        }
    }
    EXPECT_EQ(after.substr(0, after.find('\r')), before.substr(0, before.find('\r')));
    close();
    EXPECT_FALSE(folder.has("recovered.csv"));
}

} // namespace
