#include "support/main_frame.h"

#include <QListWidget>

namespace {

/// What is chosen in the dialogs, as the main frame sees it.
class Choices : public support::MainFrame {
  protected:
    /// Chooses a subfolder of the open folder as terrain art.
    void choose_terrain_art(QDialog& graphics, const QString& subfolder) {
        const driver::InDialog chooser("Form4", [&](QDialog& dialog) {
            auto& folders = driver::control<QListWidget>(dialog, "Dir1");
            auto* item = folders.findItems(subfolder, Qt::MatchExactly).last();
            QTest::mouseClick(folders.viewport(), Qt::LeftButton, {},
                              folders.visualItemRect(item).center());
            driver::press(dialog, "Command1");
        });
        driver::press(graphics, "Command1");
    }
};

TEST_F(Choices, AcceptedTerrainArtEnablesItsModeAtOnceAndForGood) {
    for (const char* type : {"desert", "forest", "ice", "marsh", "mountain"}) {
        for (int i = 0; i < 8; ++i)
            folder.write(QStringLiteral("art/complete/%1%2.bmp").arg(type).arg(i));
    }
    folder.make_folder("art/poor");
    start();
    session.configuration.graphics_folder = folder.path();
    session.configuration.terrain_art_folder = folder.path("art");
    auto& mode = action("dessin_menu");
    EXPECT_FALSE(mode.isEnabled());
    const driver::InDialog graphics("Form3", [&](QDialog& dialog) {
        choose_terrain_art(dialog, "complete");
        EXPECT_TRUE(mode.isEnabled());
        session.configuration.terrain_art_folder = folder.path("art");
        choose_terrain_art(dialog, "poor");
        driver::press(dialog, "Command3");
    });
    choose("fichier", "gfx");
    EXPECT_EQ(boxes.take().size(), 1U);
    EXPECT_EQ(session.configuration.terrain_art_flag, 0);
    EXPECT_TRUE(mode.isEnabled());
}

TEST_F(Choices, LanguageThatTheNextStartCannotReadIsRefused) {
    for (const char* name : {"a\"b.lng", "a\\b.lng", "a\xCE\xB1.lng"})
        folder.write(QString::fromUtf8(name));
    folder.write("broken.lng", "\"MENU_x\",\"no second quote\r\n");
    start();
    for (int item = 0; item < 4; ++item) {
        const std::string name = "langues(" + std::to_string(item) + ")";
        SCOPED_TRACE(action(name).text().toStdString());
        choose("langue", name);
        const std::string said = boxes.take_one();
        const bool is_broken = action(name).text() == "broken";
        const auto text =
            is_broken ? shell::Text::language_refused : shell::Text::choice_unstorable;
        const std::string expected = session.language.text(text);
        EXPECT_EQ(said.find("message: " + expected.substr(0, expected.find('%'))), 0U) << said;
        EXPECT_EQ(said.find("broken.lng, line 1") != std::string::npos, is_broken) << said;
        EXPECT_EQ(session.configuration.language_file, "english.lng");
    }
}

} // namespace
