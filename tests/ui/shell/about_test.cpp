#include "shell/frm_about.h"
#include "shell/session.h"
#include "support/dialog_driver.h"

#include <QLabel>

namespace {

struct AboutRow {
    const char* language;
    const char* caption;
};

class AboutTest : public testing::TestWithParam<AboutRow> {};

INSTANTIATE_TEST_SUITE_P(Captions, AboutTest,
                         testing::Values(AboutRow{"", " Province Editor"},
                                         AboutRow{"\"MENU_About\",\"x\"", " Province Editor"},
                                         AboutRow{
                                             "\"MENU_about\",\"x\"\r\n\"MENU_about\",\"About\"",
                                             "About Province Editor"}));

TEST_P(AboutTest, NamesTitleAndVersion) {
    const QString version_before = QCoreApplication::applicationVersion();
    QCoreApplication::setApplicationVersion(QStringLiteral("0.9.12"));
    shell::Session session;
    session.language = shell::LanguageTexts(GetParam().language);
    shell::frmAbout about(session, nullptr);
    EXPECT_TRUE(driver::run(about, [&] {
        EXPECT_EQ(about.windowTitle(), GetParam().caption);
        EXPECT_EQ(driver::control<QLabel>(about, "lblTitle").text(), "Province Editor");
        EXPECT_EQ(driver::control<QLabel>(about, "lblVersion").text(), "Version 0.9.12");
        EXPECT_FALSE(driver::control<QLabel>(about, "Label1").text().isEmpty());
        driver::press(about, "cmdOK");
    }));
    QCoreApplication::setApplicationVersion(version_before);
}

} // namespace
