#include "gfx/form2.h"
#include "gfx/form3.h"
#include "gfx/form4.h"
#include "gfx/form5.h"
#include "shell/frm_about.h"
#include "shell/session.h"
#include "support/dialog_driver.h"

#include <QAccessible>
#include <QRegularExpression>

namespace {

/// Returns the names of the controls in the order in which Tab goes through them. Every control
/// that takes the focus must be among them and tell its purpose to a screen reader.
std::string walked(QDialog& dialog) {
    QStringList names;
    driver::run(dialog, [&] {
        while (!names.contains(dialog.focusWidget()->objectName())) {
            names += dialog.focusWidget()->objectName();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        for (auto* control : dialog.findChildren<QWidget*>()) {
            if (!control->isVisible() || (control->focusPolicy() & Qt::TabFocus) == 0)
                continue;
            const QString name = control->objectName();
            EXPECT_TRUE(names.contains(name)) << name.toStdString();
            auto* accessible = QAccessible::queryAccessibleInterface(control);
            EXPECT_TRUE(accessible->text(QAccessible::Name)
                            .contains(QRegularExpression(QStringLiteral("[A-Za-z]"))))
                << name.toStdString();
        }
    });
    return names.join(' ').toStdString();
}

TEST(Dialogs, AreReachedByKeyboardAndTellTheirPurpose) {
    shell::Session session;
    session.configuration.graphics_folder = "c:\\";
    session.chooser_kind = gfx::ChooserKind::CSV2;
    gfx::Form2 maps(session, session.maps, nullptr);
    EXPECT_EQ(walked(maps), "Text1(0) Command2(0) Text1(1) Command2(1) Text1(2) Command2(2) "
                            "Text3 Text4 Command1");
    gfx::Form3 graphics(session, nullptr);
    EXPECT_EQ(walked(graphics), "File1 entre_ville sort_ville List_ville "
                                "entre_armées sort_armées List_armées "
                                "entre_manuf sort_manuf List_manuf "
                                "entre_port sort_port List_port Command2 Command1 Command3");
    gfx::Form4 chooser(session, nullptr);
    EXPECT_EQ(walked(chooser), "Text1 Command1 Command2 Drive1 Dir1 File1");
    gfx::Form5 name(session, nullptr);
    EXPECT_EQ(walked(name), "Text1 Command1");
    shell::frmAbout about(session, nullptr);
    EXPECT_EQ(walked(about), "cmdOK");
}

} // namespace
