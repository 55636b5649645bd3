#include "support/modal_watchdog.h"
#include "support/test_application.h"
#include "support/time_limit.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace {

using namespace std::chrono_literals;

/// Nothing that a test opened or holds reaches the next one, and none goes on for ever.
class BetweenTests : public testing::EmptyTestEventListener {
  public:
    void OnTestStart(const testing::TestInfo& test) override {
        limit_.begin(std::string(test.test_suite_name()) + "." + test.name());
    }
    void OnTestEnd(const testing::TestInfo&) override {
        release_buttons();
        while (QWidget* popup = QApplication::activePopupWidget())
            delete popup;
        for (QWidget* window : QApplication::topLevelWidgets())
            window->close();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        limit_.end();
    }

  private:
    /// Qt and its test library both remember what is held.
    static void release_buttons() {
        QWidget nowhere;
        for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            if (QTestPrivate::qtestMouseButtons.testFlag(button) ||
                QApplication::mouseButtons().testFlag(button))
                QTest::mouseRelease(&nowhere, button);
        }
    }

    support::TimeLimit limit_{60s};
    support::ModalWatchdog watchdog_{10s};
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir data_home; // the user's own folder is not the tests'
    qputenv("XDG_DATA_HOME", QFile::encodeName(data_home.path()));
    testing::InitGoogleTest(&argc, argv);
    const support::TestApplication application(argc, argv);
    BetweenTests between_tests;
    auto& listeners = testing::UnitTest::GetInstance()->listeners();
    listeners.Append(&between_tests);
    const int status = RUN_ALL_TESTS();
    listeners.Release(&between_tests);
    return status;
}
