#include "MainWindow/UnixSignals.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

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

}  // namespace

TEST(UnixSignals, leaveTheErrorOfAnInterruptedCallAlone) {
    {
        const UnixSignals signalsQuit;

        EXPECT_EQ(errorAfterManySignals(), 0);
    }
    // This program is not ending.
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(number, SIG_DFL);
    }
}
