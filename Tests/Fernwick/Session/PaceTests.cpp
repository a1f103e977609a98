#include <gtest/gtest.h>

#include "Session/Pace.hpp"

using std::chrono_literals::operator""ms;

TEST(Pace, hasThreeValuesFromSlowToFast) {
    const std::array expected{Pace::gentle, Pace::classic, Pace::swift};

    EXPECT_EQ(allPaces, expected);
}

TEST(Pace, hasItsNameAsRawValue) {
    EXPECT_EQ(rawValue(Pace::gentle), "Gentle");
    EXPECT_EQ(rawValue(Pace::classic), "Classic");
    EXPECT_EQ(rawValue(Pace::swift), "Swift");
}

TEST(Pace, isParsedFromItsExactRawValueOnly) {
    EXPECT_EQ(paceFromRawValue("Gentle"), Pace::gentle);
    EXPECT_EQ(paceFromRawValue("Classic"), Pace::classic);
    EXPECT_EQ(paceFromRawValue("Swift"), Pace::swift);
    EXPECT_EQ(paceFromRawValue("classic"), std::nullopt);
    EXPECT_EQ(paceFromRawValue("Classic "), std::nullopt);
    EXPECT_EQ(paceFromRawValue(""), std::nullopt);
}

TEST(Pace, setsTheTickInterval) {
    EXPECT_EQ(tickInterval(Pace::gentle), 190ms);
    EXPECT_EQ(tickInterval(Pace::classic), 130ms);
    EXPECT_EQ(tickInterval(Pace::swift), 85ms);
}

TEST(Pace, hasItsOwnKeyForThePersonalBest) {
    EXPECT_EQ(bestKey(Pace::gentle), "best-Gentle");
    EXPECT_EQ(bestKey(Pace::classic), "best-Classic");
    EXPECT_EQ(bestKey(Pace::swift), "best-Swift");
}

TEST(Pace, isDisplayedByItsName) {
    EXPECT_EQ(paceNames(), QStringList({"Gentle", "Classic", "Swift"}));
}
