#include "shell/frm_about.h"
#include "shell/session.h"
#include "support/main_frame.h"

#include <QLabel>

namespace {

TEST(AboutBox, NamesTitleAndVersion) {
    const struct {
        const char* language;
        const char* caption;
        const char* version = "Version " PROVINCE_EDITOR_VERSION;
    } rows[] = {
        {"", " Province Editor"},
        {"\"MENU_About\",\"x\"", " Province Editor"},
        {"\"MENU_about\",\"x\"\r\n\"MENU_about\",\"About\"", "About Province Editor"},
        {"\"TEXTE_about_version\",\"%1!\"", " Province Editor", PROVINCE_EDITOR_VERSION "!"}};
    for (const auto& row : rows) {
        shell::Session session;
        session.language = shell::LanguageTexts(row.language);
        shell::frmAbout about(session, nullptr);
        EXPECT_TRUE(driver::run(about, [&] {
            EXPECT_EQ(about.windowTitle(), row.caption);
            EXPECT_EQ(driver::control<QLabel>(about, "lblTitle").text(), "Province Editor");
            EXPECT_EQ(driver::control<QLabel>(about, "lblVersion").text(), row.version);
            EXPECT_FALSE(driver::control<QLabel>(about, "Label1").text().isEmpty());
            driver::press(about, "cmdOK");
        }));
    }
}

class AboutCommand : public support::MainFrame {};

TEST_F(AboutCommand, OpensTheBoxFromTheMenuBar) {
    start();
    in_dialog("frmAbout", [](QDialog& box) { driver::press(box, "cmdOK"); });
    QTest::mouseClick(frame->menuBar(), Qt::LeftButton, {},
                      frame->menuBar()->actionGeometry(&action("propos")).center());
}

} // namespace
