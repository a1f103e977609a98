#include <gtest/gtest.h>

#include <ctime>

#include "SnakeCore/Date.hpp"

namespace SnakeCore {
namespace {

TEST(Date, countsSecondsSince2001) {
    constexpr double from1970To2001 = 978'307'200;
    const auto before = static_cast<double>(std::time(nullptr)) - from1970To2001;

    const Date now = Date::now();

    EXPECT_GE(now.seconds, before - 1);
    EXPECT_LE(now.seconds, before + 60);
}

TEST(Date, comparesSeconds) {
    EXPECT_EQ(Date{1.5}, Date{1.5});
    EXPECT_NE(Date{1.5}, Date{1.25});
    EXPECT_LT(Date{-1}, Date{0.5});
    EXPECT_GT(Date{2}, Date{1});
}

TEST(Date, isZeroByDefault) {
    EXPECT_EQ(Date{}.seconds, 0);
}

}  // namespace
}  // namespace SnakeCore
