#include <gtest/gtest.h>

#include <QApplication>

#include "Garden/Look/Motion.hpp"
#include "Support/StillStyle.hpp"

TEST(Motion, isNotReducedByDefault) {
    EXPECT_FALSE(Garden::reducedMotion());
}

TEST(Motion, isReducedIfTheStyleDisablesAnimations) {
    {
        const StillStyle still;
        EXPECT_TRUE(Garden::reducedMotion());
    }
    EXPECT_FALSE(Garden::reducedMotion());
}
