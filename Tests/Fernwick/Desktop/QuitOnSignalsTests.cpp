#include <gtest/gtest.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <cerrno>
#include <csignal>

#include "Desktop/QuitOnSignals.hpp"

namespace {

/// errno after raising more signals than fit into the pipe, or the first one that is not 0.
int errnoAfterManySignals() {
    constexpr int count = 1 << 17;
    int error = 0;
    for (int i = 0; i < count && error == 0; ++i) {
        errno = 0;
        std::raise(SIGHUP);
        error = errno;
    }
    return error;
}

class QuitOnSignalsTest : public testing::TestWithParam<int> {
protected:
    ~QuitOnSignalsTest() override {
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(number, SIG_DFL);
        }
    }
};

}  // namespace

TEST_P(QuitOnSignalsTest, quitsTheEventLoopWithStatus0) {
    const Desktop::QuitOnSignals quitOnSignals;

    QMetaObject::invokeMethod(
        qApp, [] { std::raise(GetParam()); }, Qt::QueuedConnection);

    EXPECT_EQ(QCoreApplication::exec(), 0);
}

TEST_P(QuitOnSignalsTest, exitsImmediatelyBeforeThereIsAnEventLoop) {
    EXPECT_EXIT(
        {
            Desktop::exitOnSignals();
            std::raise(GetParam());
            ::_exit(1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_P(QuitOnSignalsTest, ignoresTheSignalOnceDestroyed) {
    { const Desktop::QuitOnSignals quitOnSignals; }

    std::raise(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Signals, QuitOnSignalsTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST_F(QuitOnSignalsTest, preservesErrnoOfTheInterruptedCode) {
    const Desktop::QuitOnSignals quitOnSignals;

    EXPECT_EQ(errnoAfterManySignals(), 0);
}

TEST_F(QuitOnSignalsTest, unblocksSignalsThatTheParentProcessHadBlocked) {
    sigset_t blocked{};
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    const Desktop::QuitOnSignals quitOnSignals;

    std::raise(SIGTERM);

    sigset_t pending{};
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGTERM), 0);
    sigset_t mask{};
    pthread_sigmask(SIG_UNBLOCK, nullptr, &mask);
    EXPECT_EQ(sigismember(&mask, SIGTERM), 0);
}
