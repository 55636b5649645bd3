#pragma once

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <gtest/gtest.h>

namespace support {

/// Fails a test whose modal window or menu nobody answers, and closes the window, so that the test
/// goes on.
class ModalWatchdog {
  public:
    explicit ModalWatchdog(std::chrono::milliseconds patience) : patience_(patience) {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(patience / 10);
    }

  private:
    void look() {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget* open = popup != nullptr ? popup : QApplication::activeModalWidget();
        if (open != window_) {
            window_ = open;
            since_.start();
        } else if (open != nullptr && since_.hasExpired(patience_.count())) {
            ADD_FAILURE() << "Nobody answers " << open->metaObject()->className() << " '"
                          << open->objectName().toStdString() << "', "
                          << open->windowTitle().toStdString();
            if (auto* dialog = qobject_cast<QDialog*>(open))
                dialog->done(QDialog::Rejected); // some ignore being closed
            else
                open->close();
            window_ = nullptr;
        }
    }

    std::chrono::milliseconds patience_;
    QTimer timer_;
    QPointer<QWidget> window_;
    QElapsedTimer since_;
};

} // namespace support
