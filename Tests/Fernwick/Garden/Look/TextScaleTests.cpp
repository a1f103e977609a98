#include <gtest/gtest.h>

#include <QString>
#include <limits>

#include "Garden/Look/TextScale.hpp"

TEST(TextScale, isTheDesktopsFactor) {
    EXPECT_EQ(Garden::textScaleFor(1.0), 1);
    EXPECT_EQ(Garden::textScaleFor(1.25), 1.25);
    EXPECT_EQ(Garden::textScaleFor(3.0), 3);
}

TEST(TextScale, isNotBelowOne) {
    EXPECT_EQ(Garden::textScaleFor(0.5), 1);
    EXPECT_EQ(Garden::textScaleFor(0.99), 1);
}

TEST(TextScale, ignoresNumbersThatGnomeDoesNotAllow) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double factor : {0.0, -1.25, 0.49, 3.01, 1000.0, infinity, -infinity,
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(Garden::textScaleFor(factor), 1) << factor;
    }
}

TEST(TextScale, ignoresValuesOfAnotherType) {
    for (const QVariant& value : {QVariant(), QVariant(2), QVariant(QStringLiteral("1.25")),
                                  QVariant(true), QVariant(QVariantList{1.25})}) {
        EXPECT_EQ(Garden::textScaleFor(value), 1) << value.typeName();
    }
}
