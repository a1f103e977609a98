#include <gtest/gtest.h>

#include "Painting/Board/BoardGeometry.hpp"

namespace {

using Painting::BoardGeometry;

BoardGeometry fitted(const QRectF& space) {
    return Painting::fitBoard(space, {28, 22});
}

TEST(BoardGeometry, fillsTheWidthOfATallSpaceAndIsCentredVertically) {
    const BoardGeometry geometry = fitted({10, 20, 280, 500});

    EXPECT_DOUBLE_EQ(geometry.cell, 10);
    EXPECT_EQ(geometry.frame, QRectF(10, 160, 280, 220));
}

TEST(BoardGeometry, fillsTheHeightOfAWideSpaceAndIsCentredHorizontally) {
    const BoardGeometry geometry = fitted({0, 0, 1000, 330});

    EXPECT_DOUBLE_EQ(geometry.cell, 15);
    EXPECT_EQ(geometry.frame, QRectF(290, 0, 420, 330));
}

TEST(BoardGeometry, fillsASpaceOfTheSameAspectRatio) {
    const BoardGeometry geometry = fitted({0, 0, 56, 44});

    EXPECT_DOUBLE_EQ(geometry.cell, 2);
    EXPECT_EQ(geometry.frame, QRectF(0, 0, 56, 44));
}

TEST(BoardGeometry, isNotRoundedToWholePoints) {
    const BoardGeometry geometry = fitted({0, 0, 1000, 600});

    EXPECT_DOUBLE_EQ(geometry.cell, 600.0 / 22);
    EXPECT_DOUBLE_EQ(geometry.frame.width(), 28 * 600.0 / 22);
    EXPECT_DOUBLE_EQ(geometry.frame.left(), (1000 - 28 * 600.0 / 22) / 2);
}

TEST(BoardGeometry, isEmptyInAnEmptySpace) {
    EXPECT_DOUBLE_EQ(fitted({0, 0, 100, 0}).cell, 0);
}

}  // namespace
