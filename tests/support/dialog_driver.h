#pragma once

#include "base/qt_text.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <gtest/gtest.h>
#include <string>

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

/// Returns the text of the message box that the act opened, "none" without one. Its OK is pressed.
inline std::string message_during(const std::function<void()>& act) {
    std::string text = "none";
    QTimer::singleShot(0, [&text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || box->objectName() != QStringLiteral("message"))
            return;
        text = base::to_bytes(box->text());
        QTest::keyClick(box, Qt::Key_Return);
    });
    act();
    QCoreApplication::processEvents();
    return text;
}

} // namespace driver
