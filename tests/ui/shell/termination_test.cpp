#include "shell/termination.h"

#include <QCoreApplication>
#include <QThread>

#include <gtest/gtest.h>
#include <memory>

#ifdef Q_OS_UNIX

namespace {

TEST(Termination, HearsOnEveryThreadThatTheCompositorIsGone) {
    int saved = 0;
    {
        const shell::Termination termination([](int) {}, [&saved] { ++saved; });
        qWarning("The Wayland connection broke. Did the Wayland compositor die?");
        EXPECT_EQ(saved, 1);
        const std::unique_ptr<QThread> other(QThread::create(
            [] { qWarning("The Wayland connection experienced a fatal error: Protocol error"); }));
        other->start();
        while (!other->wait(1))
            QCoreApplication::processEvents();
        EXPECT_EQ(saved, 2);
        qWarning("Something else");
    }
    qWarning("The Wayland connection broke.");
    EXPECT_EQ(saved, 2);
}

} // namespace

#endif
