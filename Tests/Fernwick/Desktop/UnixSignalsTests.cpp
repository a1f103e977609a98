#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

#include "Desktop/UnixSignals.hpp"

namespace {

/// The error that a call is left with which as many signals interrupt as a pipe cannot hold.
int errorAfterManySignals() {
    constexpr int count = 1 << 17;
    int error = 0;
    for (int i = 0; i < count && error == 0; ++i) {
        errno = 0;
        std::raise(SIGHUP);
        error = errno;
    }
    return error;
}

class UnixSignalsTest : public testing::Test {
protected:
    ~UnixSignalsTest() override {
        // This program is not ending.
        for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
            std::signal(number, SIG_DFL);
        }
    }
};

}  // namespace

TEST_F(UnixSignalsTest, leaveTheErrorOfAnInterruptedCallAlone) {
    const UnixSignals signalsQuit;

    EXPECT_EQ(errorAfterManySignals(), 0);
}

TEST_F(UnixSignalsTest, comeThroughWhereWhoeverStartedTheProgramBlockedThem) {
    sigset_t blocked{};
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    const UnixSignals signalsQuit;

    std::raise(SIGTERM);

    sigset_t waiting{};
    sigpending(&waiting);
    EXPECT_EQ(sigismember(&waiting, SIGTERM), 0);
    sigset_t held{};
    pthread_sigmask(SIG_UNBLOCK, nullptr, &held);
    EXPECT_EQ(sigismember(&held, SIGTERM), 0);
}
