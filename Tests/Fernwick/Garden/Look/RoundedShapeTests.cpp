#include <gtest/gtest.h>

#include <QTransform>
#include <cmath>

#include "Garden/Look/RoundedShape.hpp"

namespace {

constexpr QRectF plate(0, 0, 200, 100);
constexpr double radius = 22;

// How far from the corner's point, along each axis, the shape crosses the diagonal.
double diagonalGap(const QPainterPath& shape) {
    double outside = 0;
    double inside = 50;
    while (inside - outside > 1e-6) {
        const double middle = (inside + outside) / 2;
        (shape.contains(QPointF(middle, middle)) ? inside : outside) = middle;
    }
    return inside;
}

void expectPointSymmetry(const QPainterPath& shape, const QRectF& rect) {
    for (double x = rect.left() + 0.25; x < rect.right(); x += 1.5) {
        for (double y = rect.top() + 0.25; y < rect.bottom(); y += 1.5) {
            const QPointF across(rect.left() + rect.right() - x, rect.top() + rect.bottom() - y);
            const QPointF beside(rect.left() + rect.right() - x, y);
            ASSERT_EQ(shape.contains(QPointF(x, y)), shape.contains(across)) << x << ' ' << y;
            ASSERT_EQ(shape.contains(QPointF(x, y)), shape.contains(beside)) << x << ' ' << y;
        }
    }
}

}  // namespace

TEST(RoundedShape, fillsItsRectangleAndNoMore) {
    EXPECT_EQ(Garden::continuousRoundedRect(plate, radius).boundingRect(), plate);
    EXPECT_EQ(Garden::continuousCapsule(plate).boundingRect(), plate);
}

TEST(RoundedShape, followsTheSuperellipse) {
    const QPainterPath shape = Garden::continuousRoundedRect(plate, radius);

    constexpr double exponent = 2.5;
    for (double angle = 0.05; angle < 1.55; angle += 0.05) {
        const double x = radius * (1 - std::pow(std::cos(angle), 2 / exponent));
        const double y = radius * (1 - std::pow(std::sin(angle), 2 / exponent));
        const QPointF outwards = QPointF(-std::cos(angle), -std::sin(angle)) * 0.25;
        EXPECT_FALSE(shape.contains(QPointF(x, y) + outwards)) << angle;
        EXPECT_TRUE(shape.contains(QPointF(x, y) - outwards)) << angle;
    }
}

TEST(RoundedShape, isTheSameAtEveryCorner) {
    expectPointSymmetry(Garden::continuousRoundedRect(plate, radius), plate);
    expectPointSymmetry(Garden::continuousCapsule(plate), plate);
}

TEST(RoundedShape, limitsTheRadiusToHalfTheShorterSide) {
    EXPECT_EQ(Garden::continuousRoundedRect(plate, 500),
              Garden::continuousRoundedRect(plate, plate.height() / 2));
}

TEST(RoundedShape, isTheRectangleItselfWithoutARadius) {
    QPainterPath rectangle;
    rectangle.addRect(plate);

    EXPECT_EQ(Garden::continuousRoundedRect(plate, 0), rectangle);
}

TEST(RoundedShape, endsACapsuleRoundly) {
    const double circle = plate.height() / 2 * (1 - std::sqrt(0.5));

    EXPECT_NEAR(diagonalGap(Garden::continuousCapsule(plate)), circle, 0.05);
}

TEST(RoundedShape, makesACircleOfASquare) {
    const QPainterPath shape = Garden::continuousCapsule(QRectF(-50, -50, 100, 100));

    for (double angle = 0; angle < 6.28; angle += 0.1) {
        const QPointF outwards(std::cos(angle), std::sin(angle));
        EXPECT_TRUE(shape.contains(49.9 * outwards)) << angle;
        EXPECT_FALSE(shape.contains(50.1 * outwards)) << angle;
    }
}

TEST(RoundedShape, standsUprightAsItLies) {
    const QPainterPath lying = Garden::continuousCapsule(plate);
    const QPainterPath standing = Garden::continuousCapsule(QRectF(0, 0, 100, 200));

    for (double x = 0.25; x < 100; x += 1.5) {
        for (double y = 0.25; y < 200; y += 1.5) {
            ASSERT_EQ(standing.contains(QPointF(x, y)), lying.contains(QPointF(y, x)));
        }
    }
}

TEST(RoundedShape, isEmptyForAnEmptyCapsule) {
    EXPECT_TRUE(Garden::continuousCapsule(QRectF()).isEmpty());
}
