#include <gtest/gtest.h>

#include <QTransform>
#include <cmath>

#include "Garden/Look/RoundedShape.hpp"

namespace {

constexpr QRectF rectangle(0, 0, 200, 100);
constexpr double radius = 22;

// The coordinate, both x and y, at which the shape crosses the diagonal of its top left corner.
double diagonalGap(const QPainterPath& shape) {
    double outside = 0;
    double inside = 50;
    while (inside - outside > 1e-6) {
        const double middle = (inside + outside) / 2;
        (shape.contains(QPointF(middle, middle)) ? inside : outside) = middle;
    }
    return inside;
}

void expectSymmetry(const QPainterPath& shape, const QRectF& rect) {
    for (double x = rect.left() + 0.25; x < rect.right(); x += 1.5) {
        for (double y = rect.top() + 0.25; y < rect.bottom(); y += 1.5) {
            const QPointF opposite(rect.left() + rect.right() - x, rect.top() + rect.bottom() - y);
            const QPointF mirrored(rect.left() + rect.right() - x, y);
            ASSERT_EQ(shape.contains(QPointF(x, y)), shape.contains(opposite)) << x << ' ' << y;
            ASSERT_EQ(shape.contains(QPointF(x, y)), shape.contains(mirrored)) << x << ' ' << y;
        }
    }
}

}  // namespace

TEST(RoundedShape, hasTheRectangleAsItsBounds) {
    EXPECT_EQ(Garden::continuousRoundedRect(rectangle, radius).boundingRect(), rectangle);
    EXPECT_EQ(Garden::continuousCapsule(rectangle).boundingRect(), rectangle);
}

TEST(RoundedShape, crossesTheDiagonalWhereACircleWould) {
    const double circle = radius * (1 - std::sqrt(0.5));

    EXPECT_NEAR(diagonalGap(Garden::continuousRoundedRect(rectangle, radius)), circle, 0.05);
}

TEST(RoundedShape, leavesTheEdgeEarlierThanACircle) {
    const QPainterPath shape = Garden::continuousRoundedRect(rectangle, radius);

    // A circle would touch the edge from here on.
    EXPECT_FALSE(shape.contains(QPointF(radius, 0.1)));
    EXPECT_TRUE(shape.contains(QPointF(1.53 * radius, 0.1)));
}

TEST(RoundedShape, isTheSameAtEveryCorner) {
    expectSymmetry(Garden::continuousRoundedRect(rectangle, radius), rectangle);
    expectSymmetry(Garden::continuousCapsule(rectangle), rectangle);
}

TEST(RoundedShape, limitsTheRadiusToHalfTheShorterSide) {
    EXPECT_EQ(Garden::continuousRoundedRect(rectangle, 500), Garden::continuousCapsule(rectangle));
}

TEST(RoundedShape, isTheRectangleForRadius0) {
    QPainterPath path;
    path.addRect(rectangle);

    EXPECT_EQ(Garden::continuousRoundedRect(rectangle, 0), path);
}

TEST(RoundedShape, givesACapsuleCircularEnds) {
    const double circle = rectangle.height() / 2 * (1 - std::sqrt(0.5));

    EXPECT_NEAR(diagonalGap(Garden::continuousCapsule(rectangle)), circle, 0.05);
}

TEST(RoundedShape, makesASquareCapsuleACircle) {
    const QPainterPath shape = Garden::continuousCapsule(QRectF(-50, -50, 100, 100));

    for (double angle = 0; angle < 6.28; angle += 0.1) {
        const QPointF outwards(std::cos(angle), std::sin(angle));
        EXPECT_TRUE(shape.contains(49.9 * outwards)) << angle;
        EXPECT_FALSE(shape.contains(50.1 * outwards)) << angle;
    }
}

TEST(RoundedShape, isTheSameForAnUprightCapsule) {
    const QPainterPath horizontal = Garden::continuousCapsule(rectangle);
    const QPainterPath upright = Garden::continuousCapsule(QRectF(0, 0, 100, 200));

    for (double x = 0.25; x < 100; x += 1.5) {
        for (double y = 0.25; y < 200; y += 1.5) {
            ASSERT_EQ(upright.contains(QPointF(x, y)), horizontal.contains(QPointF(y, x)));
        }
    }
}

TEST(RoundedShape, isEmptyForAnEmptyCapsule) {
    EXPECT_TRUE(Garden::continuousCapsule(QRectF()).isEmpty());
}
