#pragma once

#include "support/main_frame.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QStyle>
#include <QWheelEvent>

#include <map>
#include <set>

namespace support {

/// The main frame with its panel, and what a user does and sees there.
class Panel : public support::MainFrame {
  protected:
    Panel() { start(); }

    /// Gives provinces 5 and 6 a value each and selects both.
    void select_with(int field, const std::string& of_5, const std::string& of_6) {
        load(5, field, of_5);
        load(6, field, of_6);
        select(QStringLiteral("5;6"));
    }
    std::string cells(int field) const { return cell(5, field) + "|" + cell(6, field); }

    /// Returns what the user sees in a control; of a group the indices of the options that are on.
    std::string shown(const std::string& name) const {
        auto* found = frame->findChild<QWidget*>(QString::fromStdString(name));
        if (auto* text = qobject_cast<QLineEdit*>(found))
            return base::to_bytes(text->text());
        if (auto* list = qobject_cast<QComboBox*>(found))
            return base::to_bytes(list->currentText());
        if (auto* box = qobject_cast<QCheckBox*>(found))
            return box->isChecked() ? "on" : "off";
        if (auto* label = qobject_cast<QLabel*>(found))
            return base::to_bytes(label->text());
        if (auto* slider = qobject_cast<QSlider*>(found))
            return std::to_string(slider->value());
        std::string on;
        const auto group = QString::fromStdString(name.substr(0, name.find('(')));
        for (int n = 0; n < 21; ++n) {
            auto* option =
                frame->findChild<QRadioButton*>(QStringLiteral("%1(%2)").arg(group).arg(n));
            if (option != nullptr && option->isChecked())
                on += std::to_string(n);
        }
        return on;
    }

    void press(const std::string& name, Qt::MouseButton button = Qt::LeftButton) const {
        QTest::mousePress(&visible(name), button, {}, spot(visible(name)));
    }
    void pick(const std::string& list_name, const QString& item) {
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0); // else the next click belongs to the first one
        auto& list = static_cast<QComboBox&>(visible(list_name));
        QTest::mouseClick(&list, Qt::LeftButton);
        auto* view = list.view();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
        const auto index = list.model()->index(list.findText(item), 0);
        view->scrollTo(index);
        QTest::mouseMove(view->viewport(), view->visualRect(index).center());
        QTest::qWait(5);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
        QApplication::setDoubleClickInterval(interval);
    }

    static void drag(QWidget& control, QEvent::Type type, int x) {
        const QPointF at(x, control.rect().center().y());
        QMouseEvent event(type, at, control.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
        QApplication::sendEvent(&control, &event);
    }
    static void wheel(QWidget& control) {
        const QPointF at = control.rect().center();
        QWheelEvent event(at, control.mapToGlobal(at), {}, {0, -240}, {}, {}, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&control, &event);
    }
};

} // namespace support
