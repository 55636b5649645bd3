#pragma once

#include "base/captions.h"
#include "base/files.h"
#include "shell/etat.h"
#include "shell/mdi_form1.h"
#include "support/dialog_driver.h"
#include "support/folder.h"
#include "support/message_boxes.h"
#include "support/test_application.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace support {

/// The program in a folder of its own, used by mouse and keyboard.
class MainFrame : public testing::Test {
  protected:
    MainFrame() {
        session = shell::Session();
        application.copies().remove_own(); // the timer may have made one since the last test
        session.program_folder = folder.path();
        application.ends.clear();
        application.treats_errors = true;
        for (const auto* name : {"english.lng", "french.lng"})
            folder.write(QLatin1String(name), language_file(name));
    }
    ~MainFrame() override {
        frame.reset();
        application.after_event = [] {};
        application.copies().remove_own();
        application.treats_errors = false;
    }

    static std::string language_file(const std::string& name) {
        return base::read_file(std::string(LANGUAGES_FOLDER) + "/" + name);
    }

    void start() {
        frame = std::make_unique<shell::MDIForm1>(session, application.copies(),
                                                  shell::start_up(session));
        application.after_event = [this] {
            if (frame) // no more while it is being destroyed
                frame->look();
        };
        frame->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    }

    template <class Control>
    Control& control(const std::string& name) const {
        return driver::control<Control>(*frame, name.c_str());
    }
    QAction& action(const std::string& name) const {
        auto* found = frame->findChild<QAction*>(QString::fromStdString(name));
        if (found == nullptr)
            throw std::runtime_error("no action " + name);
        return *found;
    }

    /// Comes back to the frame, as a desktop does when a box over it was closed, and opens the
    /// panel's tab that holds the control.
    QWidget& visible(const std::string& name) const {
        come_back();
        auto& found = control<QWidget>(name);
        auto* frames = control<QWidget>("panneau").findChild<QStackedWidget*>();
        for (int tab = 0; tab < frames->count(); ++tab) {
            if (frames->widget(tab)->isAncestorOf(&found) && frames->currentIndex() != tab)
                open_tab(tab);
        }
        return found;
    }
    void come_back() const {
        // A menu that was closed stays the active window, and then no shortcut finds the frame.
        const auto is_active = [this] { return QApplication::activeWindow() == frame.get(); };
        if (is_active())
            return;
        frame->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor(is_active));
    }
    /// Colours the map by a field through its menu item.
    void colour_by(const std::string& item) const {
        come_back();
        QTest::mouseClick(frame->menuBar(), Qt::LeftButton, {},
                          frame->menuBar()->actionGeometry(&action("carte")).center());
        QTest::keyClick(action("carte").menu(), Qt::Key_B); // "Colour &by"
        auto* menu = action("colorer").menu();
        ASSERT_TRUE(menu->isVisible());
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&action(item)).center());
        QCoreApplication::processEvents();
    }
    void open_tab(int tab) const {
        auto& strip = control<QTabBar>("TabStrip1");
        QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(tab).center());
    }
    void click(const std::string& name) const {
        auto& target = visible(name);
        QTest::mouseClick(&target, Qt::LeftButton, {}, spot(target));
    }
    /// Returns where a control answers to the mouse: options and boxes only do so on their left.
    static QPoint spot(const QWidget& control) {
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        const QPoint middle = control.rect().center();
        return button != nullptr && button->isCheckable() ? QPoint(8, middle.y()) : middle;
    }

    /// Types the text in the place of a field's present one; the field is not left.
    void type(const std::string& name, const QString& text) const {
        auto& field = visible(name);
        QTest::mouseClick(&field, Qt::LeftButton);
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        for (const QChar character : text) // keyClicks knows not all of them
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(character), {});
    }
    void enter(const std::string& name, const QString& text) const {
        type(name, text);
        QTest::keyClick(&control<QWidget>(name), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    void select(const QString& text) const { enter("selection_text", text); }

    /// Opens a menu of the menu bar and clicks on one of its items.
    void choose(const std::string& menu, const std::string& item) const {
        auto& title = action(menu);
        QTest::mouseClick(frame->menuBar(), Qt::LeftButton, {},
                          frame->menuBar()->actionGeometry(&title).center());
        ASSERT_TRUE(title.menu()->isVisible());
        QTest::mouseClick(title.menu(), Qt::LeftButton, {},
                          title.menu()->actionGeometry(&action(item)).center());
        QCoreApplication::processEvents();
    }

    /// Presses a key as a user of the frame does, for whom a dialog is closed by now.
    void press_key(Qt::Key key, Qt::KeyboardModifiers keys = {}) const {
        come_back();
        QTest::keyClick(frame.get(), key, keys);
        QCoreApplication::processEvents();
    }

    /// Opens the folder's bitmaps of those names through the dialog; map 2 may be empty.
    void open_maps(const QString& map_1, const QString& map_2, const QString& id_map) {
        in_dialog("Form2", [=, this](QDialog& dialog) {
            for (const auto& [field, name] :
                 {std::pair{"Text1(0)", map_1}, {"Text1(1)", map_2}, {"Text1(2)", id_map}}) {
                auto& path = driver::control<QLineEdit>(dialog, field);
                path.clear();
                if (!name.isEmpty())
                    QTest::keyClicks(&path, folder.native(name));
            }
            driver::press(dialog, "Command1");
        });
        choose("fichier", "ouvrir_cartes");
    }

    /// Acts in the dialog of that name that a command opens from now on; it must, and the acts
    /// must close it.
    void in_dialog(const char* name, std::function<void(QDialog&)> act) {
        in_dialog_.emplace(name, std::move(act));
    }
    void save_as(const QString& name) {
        in_dialog("Form4", [name](QDialog& chooser) {
            QTest::keyClicks(&driver::control<QLineEdit>(chooser, "Text1"), name);
            driver::press(chooser, "Command1");
        });
        choose("fichier", "enregister");
    }

    std::string cell(int province, int field) const {
        return session.provinces.cell(province, data::table_column(data::FieldNumber{field}));
    }
    void load(int province, int field, const std::string& text) const {
        session.provinces.load(province, data::table_column(data::FieldNumber{field}), text);
    }
    std::string file(const QString& name) const { return folder.read(name); }

    Folder folder;
    TestApplication& application = TestApplication::instance();
    shell::Session& session = application.session;
    MessageBoxes boxes;
    std::unique_ptr<shell::MDIForm1> frame;

  private:
    std::optional<driver::InDialog> in_dialog_;
};

} // namespace support
