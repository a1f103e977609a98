#include "MainWindow/UnixSignals.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>

TEST(UnixSignals, leaveTheErrorOfAnInterruptedCallAlone) {
    // More than a pipe holds, so that the last ones cannot be written down.
    constexpr int count = 1 << 17;
    const UnixSignals signalsQuit;

    int error = 0;
    for (int i = 0; i < count && error == 0; ++i) {
        errno = 0;
        std::raise(SIGHUP);
        error = errno;
    }

    EXPECT_EQ(error, 0);
}
