#pragma once

#include "base/qt_text.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace support {

struct Box {
    std::string name;
    std::string text;
    QMessageBox::StandardButton preset;
};

/// Answers every message box that appears while it lives, and remembers it.
class MessageBoxes {
  public:
    MessageBoxes() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { answer_open_box(); });
        timer_.start(1);
    }

    /// Returns the boxes since the last call.
    std::vector<Box> take() { return std::exchange(boxes_, {}); }

    /// Returns the one box since the last call as "name: text"; "none" without one.
    std::string take_one() {
        const auto boxes = take();
        if (boxes.empty())
            return "none";
        return boxes.size() > 1 ? "several" : boxes[0].name + ": " + boxes[0].text;
    }

    /// The button that is pressed where a box has it; Enter answers the others.
    QMessageBox::StandardButton answer = QMessageBox::NoButton;

    /// What is tried on a box before it is answered.
    std::function<void(QMessageBox&)> before_answer = [](QMessageBox&) {};

  private:
    void answer_open_box() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        boxes_.push_back({box->objectName().toStdString(), base::to_bytes(box->text()),
                          box->standardButton(box->defaultButton())});
        before_answer(*box);
        if (auto* button = box->button(answer))
            QTest::mouseClick(button, Qt::LeftButton);
        else
            QTest::keyClick(box, Qt::Key_Return);
    }

    QTimer timer_;
    std::vector<Box> boxes_;
};

} // namespace support
