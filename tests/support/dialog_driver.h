#pragma once

#include "support/message_boxes.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>

/// What a user does to a modal dialog and its message boxes.
namespace driver {

template <class Control>
Control& control(QWidget& window, const char* name) {
    auto* found = window.findChild<Control*>(QString::fromUtf8(name));
    if (found == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

inline void press(QWidget& window, const char* button) {
    QTest::mouseClick(&control<QPushButton>(window, button), Qt::LeftButton);
}

/// Runs the dialog modally with the acts inside; one that is still open afterwards is closed.
/// Returns whether the acts closed it.
inline bool run(QDialog& dialog, const std::function<void()>& act) {
    bool closed = false;
    QTimer::singleShot(0, &dialog, [&] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        act();
        closed = !dialog.isVisible();
        dialog.close();
    });
    dialog.exec();
    return closed;
}

/// Acts in the dialog of that name that opens while this lives. The acts close it.
class InDialog {
  public:
    InDialog(std::string name, std::function<void(QDialog&)> act)
        : name_(std::move(name)), act_(std::move(act)) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(1);
    }
    ~InDialog() { EXPECT_FALSE(timer_.isActive()) << name_ << " did not open"; }
    InDialog(const InDialog&) = delete;
    InDialog& operator=(const InDialog&) = delete;

  private:
    void look() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || dialog->objectName().toStdString() != name_)
            return;
        timer_.stop();
        act_(*dialog);
        EXPECT_FALSE(dialog->isVisible()) << name_ << " is still open";
        dialog->close();
    }

    std::string name_;
    std::function<void(QDialog&)> act_;
    QTimer timer_;
};

/// Returns the text of the message box that the act opened, "none" without one. Its OK is pressed.
inline std::string message_during(const std::function<void()>& act) {
    support::MessageBoxes boxes;
    act();
    QCoreApplication::processEvents();
    const auto seen = boxes.take();
    if (seen.empty())
        return "none";
    EXPECT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].name, "message");
    return seen[0].text;
}

} // namespace driver
