#include "support/modal_watchdog.h"

#include <QMessageBox>

#include <gtest/gtest-spi.h>

namespace {

TEST(ModalWatchdog, AnUnansweredWindowFailsItsTest) {
    using namespace std::chrono_literals;
    const support::ModalWatchdog watchdog(50ms);
    const auto ask = [] {
        QMessageBox box(QMessageBox::Question, "Title", "Text", QMessageBox::Yes | QMessageBox::No);
        box.setObjectName("unanswered"); // without a Cancel it cannot be closed
        box.exec();
    };
    EXPECT_NONFATAL_FAILURE(ask(), "unanswered");
}

} // namespace
