#include <gtest/gtest.h>

#include <QApplication>

#include "Garden/Look/Motion.hpp"
#include "Support/StillStyle.hpp"

TEST(Motion, isFreeOnAnOrdinaryDesktop) {
    EXPECT_FALSE(Garden::reducedMotion());
}

TEST(Motion, isReducedWhereTheStyleAnimatesNothing) {
    {
        const StillStyle still;
        EXPECT_TRUE(Garden::reducedMotion());
    }
    EXPECT_FALSE(Garden::reducedMotion());
}
