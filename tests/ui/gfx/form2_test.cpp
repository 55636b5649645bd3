#include "data/run_time_error.h"
#include "gfx/form2.h"
#include "shell/session.h"
#include "support/dialog_driver.h"
#include "support/folder.h"
#include "support/leaks.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace {

using driver::control;
using driver::message_during;
using driver::press;

class Form2Test : public testing::Test {
  protected:
    Form2Test() {
        session.language = shell::LanguageTexts("\"MENU_Form2.Label1\",\"first\"\r\n"
                                                "\"MENU_Form2.Label5\",\"Y place\"\r\n"
                                                "\"MENU_form2.label6\",\"other case\"\r\n"
                                                "\"MENU_Form2.Command1\",\"Choisir\"\r\n"
                                                "\"MESSAGE_mess14\",\"no offset\"\r\n"
                                                "\"MESSAGE_mess16\",\"no map\"\r\n");
        session.maps = {"c:\\maps\\1.bmp", "c:\\maps\\2.bmp", "c:\\maps\\id.bmp", 10.25, -3};
    }

    /// Runs a new dialog with the acts inside. Returns whether they closed it.
    bool run(const std::function<void(gfx::Form2&)>& act) {
        session.cancelled_flag = 0;
        gfx::Form2 form(session, session.maps, nullptr);
        return driver::run(form, [&] { act(form); });
    }

    static void type(gfx::Form2& form, const char* field, const char* text) {
        auto& edit = control<QLineEdit>(form, field);
        QTest::mouseClick(&edit, Qt::LeftButton);
        QTest::keySequence(&edit, QKeySequence::SelectAll);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }

    shell::Session session;
};

TEST_F(Form2Test, ShowsCaptionsAndPresentValues) {
    run([](gfx::Form2& form) {
        EXPECT_EQ(form.windowTitle(), "Province Editor");
        EXPECT_EQ(control<QLabel>(form, "Label1").text(), "first");
        EXPECT_NE(control<QLabel>(form, "Label6").text(), "other case"); // of the keys
        EXPECT_EQ(control<QPushButton>(form, "Command1").text(), "Choisir");
        EXPECT_EQ(control<QLineEdit>(form, "Text1(0)").text(), "c:\\maps\\1.bmp");
        EXPECT_EQ(control<QLineEdit>(form, "Text1(1)").text(), "c:\\maps\\2.bmp");
        EXPECT_EQ(control<QLineEdit>(form, "Text1(2)").text(), "c:\\maps\\id.bmp");
        EXPECT_EQ(control<QLineEdit>(form, "Text3").text(), "10.25");
        EXPECT_EQ(control<QLineEdit>(form, "Text4").text(), "-3");
    });
}

TEST_F(Form2Test, ConfirmationTakesPathsOver) {
    EXPECT_TRUE(run([](gfx::Form2& form) {
        type(form, "Text1(0)", "/maps//one.bmp");
        type(form, "Text1(1)", "");
        type(form, "Text1(2)", "C:\\maps\\three.bmp");
        press(form, "Command1");
    }));
    EXPECT_EQ(session.cancelled_flag, 0);
    EXPECT_EQ(session.maps.map_1_path, "c:\\maps\\one.bmp");
    EXPECT_EQ(session.maps.map_2_path, "c:\\maps\\2.bmp"); // an empty field leaves it alone
    EXPECT_EQ(session.maps.id_map_path, "C:\\maps\\three.bmp");

    EXPECT_TRUE(run([](gfx::Form2& form) {
        type(form, "Text1(1)", "c:\\two.bmp");
        QTest::keyClick(&control<QLineEdit>(form, "Text1(1)"), Qt::Key_Return);
    }));
    EXPECT_EQ(session.cancelled_flag, 0);
    EXPECT_EQ(session.maps.map_2_path, "c:\\two.bmp");
}

TEST_F(Form2Test, BlanksAndQuotesAroundAPathAreDropped) {
    EXPECT_TRUE(run([](gfx::Form2& form) {
        type(form, "Text1(0)", "  \"c:\\a b\\one.bmp\" ");
        type(form, "Text1(1)", " '' ");
        type(form, "Text1(2)", "'/maps/three's.bmp'");
        press(form, "Command1");
    }));
    EXPECT_EQ(session.maps.map_1_path, "c:\\a b\\one.bmp");
    EXPECT_EQ(session.maps.map_2_path, "c:\\maps\\2.bmp") << "counts as empty";
    EXPECT_EQ(session.maps.id_map_path, "c:\\maps\\three's.bmp");
    EXPECT_FALSE(run([](gfx::Form2& form) {
        type(form, "Text1(2)", " \" \" ");
        EXPECT_EQ(message_during([&] { press(form, "Command1"); }), "no map");
    }));
}

TEST_F(Form2Test, APathMayHoldLettersOutsideTheCodePage) {
    EXPECT_TRUE(run([&](gfx::Form2& form) {
        type(form, "Text1(0)", "/maps/");
        control<QLineEdit>(form, "Text1(0)").insert(QChar(0x3B1));
        press(form, "Command1");
    }));
    EXPECT_EQ(base::path_text(session.maps.map_1_path), QStringLiteral("c:\\maps\\\u03B1"));
}

TEST_F(Form2Test, OffsetsAreLeadingNumbers) {
    struct Row {
        const char* x;
        const char* y;
        double x_offset;
        int y_offset;
    };
    for (const auto& row : std::vector<Row>{{"10.25", "12.5", 10.25, 12},
                                            {" -7 pixels", "13.5", -7, 14},
                                            {"1,5", "letters", 1, 0},
                                            {"40000", "-32768.5", 40000, -32768},
                                            {"x", "32767.4", 0, 32767}}) {
        SCOPED_TRACE(row.y);
        EXPECT_TRUE(run([&](gfx::Form2& form) {
            type(form, "Text3", row.x);
            type(form, "Text4", row.y);
            press(form, "Command1");
        }));
        EXPECT_EQ(session.maps.x_offset, row.x_offset);
        EXPECT_EQ(session.maps.y_offset, row.y_offset);
    }
}

TEST_F(Form2Test, OffsetBeyond16BitsIsAnOverflow) {
    const LeaksExpected leaks;
    run([&](gfx::Form2& form) {
        type(form, "Text4", "32767.5");
        try {
            press(form, "Command1");
            ADD_FAILURE();
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), data::ErrorNumber::overflow);
            EXPECT_EQ(error.place().in_english().find("Y place"), 0U) << error.what();
        }
    });
    EXPECT_EQ(session.maps.y_offset, -3);
}

TEST_F(Form2Test, MissingValuesKeepTheDialogOpen) {
    struct Row {
        std::vector<const char*> emptied;
        const char* message;
    };
    for (const auto& row : std::vector<Row>{{{"Text3"}, "no offset"},
                                            {{"Text4", "Text1(0)"}, "no offset"},
                                            {{"Text1(0)"}, "no map"},
                                            {{"Text1(2)"}, "no map"}}) {
        EXPECT_FALSE(run([&](gfx::Form2& form) {
            type(form, "Text1(1)", "c:\\other.bmp");
            for (const char* field : row.emptied)
                type(form, field, "");
            EXPECT_EQ(message_during([&] { press(form, "Command1"); }), row.message);
            EXPECT_TRUE(form.isVisible());
        }));
        EXPECT_EQ(session.cancelled_flag, 1);
        EXPECT_EQ(session.maps.map_2_path, "c:\\maps\\2.bmp");
    }
}

TEST_F(Form2Test, BrowsingFillsTheFieldBesideTheButton) {
    const support::Folder folder;
    const std::string stored = folder.path();
    folder.write("relief.bmp");
    session.configuration.map_bitmap_path = stored + "\\";

    const auto browse = [](gfx::Form2& form, int index, const char* answer) {
        const driver::InDialog in_chooser("Form4", [answer](QDialog& chooser) {
            QTest::keyClick(&control<QListWidget>(chooser, "File1"), Qt::Key_Down);
            press(chooser, answer);
        });
        press(form, QByteArray("Command2(") + QByteArray::number(index) + ')');
        return base::to_bytes(
            control<QLineEdit>(form, QByteArray("Text1(") + QByteArray::number(index) + ')')
                .text());
    };
    EXPECT_FALSE(run([&](gfx::Form2& form) {
        for (int index = 0; index < 3; ++index) {
            const std::string before = base::to_bytes(
                control<QLineEdit>(form, QByteArray("Text1(") + QByteArray::number(index) + ')')
                    .text());
            EXPECT_EQ(browse(form, index, "Command2"), before);
            EXPECT_EQ(browse(form, index, "Command1"), stored + "\\relief.bmp");
        }
    }));
    EXPECT_EQ(session.cancelled_flag, 1); // closed after browsing, never confirmed
    EXPECT_EQ(session.maps.map_1_path, "c:\\maps\\1.bmp");
}

TEST_F(Form2Test, EveryOtherCloseIsACancel) {
    EXPECT_TRUE(run([](gfx::Form2& form) { QTest::keyClick(&form, Qt::Key_Escape); }));
    EXPECT_EQ(session.cancelled_flag, 1);
    EXPECT_TRUE(run([](gfx::Form2& form) { form.close(); }));
    EXPECT_EQ(session.cancelled_flag, 1);
}

} // namespace
