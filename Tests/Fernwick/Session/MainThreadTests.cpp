#include <gtest/gtest.h>

#include <thread>

#include "Session/MainThread.hpp"

TEST(MainThread, assertionPassesOnTheMainThread) {
    assertMainThread();
}

TEST(MainThreadDeathTest, assertionAbortsOnAnyOtherThread) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(std::thread([] { assertMainThread(); }).join(),
                 "Fernwick/FernwickApp:[0-9]+: not on the main thread");
}
