#include <gtest/gtest.h>

#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Support/Picture.hpp"

TEST(StatusDot, isRoundAndWholeAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        Garden::StatusDot dot;
        dot.setColour(Garden::mint);
        const QImage image = picture(dot, scale);
        const QRect ink = inkOf(image);

        EXPECT_GT(ink.top(), 0) << scale;
        EXPECT_GT(ink.left(), 0) << scale;
        EXPECT_LT(ink.bottom(), image.height() - 1) << scale;
        EXPECT_LT(ink.right(), image.width() - 1) << scale;
        EXPECT_NEAR(ink.width(), 5 * scale, 2) << scale;
    }
}
