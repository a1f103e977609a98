#include <gtest/gtest.h>

#include <limits>

#include "Garden/Look/NumberText.hpp"

TEST(NumberText, replacesThePlaceholder) {
    EXPECT_EQ(Garden::withNumber(QStringLiteral("You gathered %lld points."), 1230),
              QStringLiteral("You gathered 1230 points."));
    EXPECT_EQ(Garden::withNumber(QStringLiteral("%lld"), 0), QStringLiteral("0"));
}

TEST(NumberText, writesExtremeValuesWithoutDigitGrouping) {
    EXPECT_EQ(Garden::withNumber(QStringLiteral("%lld"), std::numeric_limits<qint64>::max()),
              QStringLiteral("9223372036854775807"));
    EXPECT_EQ(Garden::withNumber(QStringLiteral("%lld"), std::numeric_limits<qint64>::min()),
              QStringLiteral("-9223372036854775808"));
}

TEST(NumberText, leavesOtherFormatSpecifiersUnchanged) {
    EXPECT_EQ(Garden::withNumber(QStringLiteral("%s %n %d 100% %lld"), 7),
              QStringLiteral("%s %n %d 100% 7"));
    EXPECT_EQ(Garden::withNumber(QStringLiteral("no placeholder"), 7),
              QStringLiteral("no placeholder"));
}
