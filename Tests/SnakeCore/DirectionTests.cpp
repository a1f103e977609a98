#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "SnakeCore/Direction.hpp"
#include "SnakeCore/Playing.hpp"

namespace SnakeCore {
namespace {

TEST(Direction, isNumberedUpDownLeftRight) {
    EXPECT_EQ(static_cast<int>(Direction::up), 0);
    EXPECT_EQ(static_cast<int>(Direction::down), 1);
    EXPECT_EQ(static_cast<int>(Direction::left), 2);
    EXPECT_EQ(static_cast<int>(Direction::right), 3);
}

TEST(Direction, stepsOneCellWithRowsGrowingDownwards) {
    EXPECT_EQ(stepVector(Direction::up), (Cell{0, -1}));
    EXPECT_EQ(stepVector(Direction::down), (Cell{0, 1}));
    EXPECT_EQ(stepVector(Direction::left), (Cell{-1, 0}));
    EXPECT_EQ(stepVector(Direction::right), (Cell{1, 0}));
}

TEST(Direction, isOppositeInFourOfSixteenPairs) {
    const std::set<std::pair<Direction, Direction>> opposites{
        {Direction::up, Direction::down},
        {Direction::down, Direction::up},
        {Direction::left, Direction::right},
        {Direction::right, Direction::left},
    };

    for (const Direction first : everyDirection) {
        for (const Direction second : everyDirection) {
            EXPECT_EQ(opposite(first, second), opposites.contains({first, second}))
                << static_cast<int>(first) << " and " << static_cast<int>(second);
        }
    }
}

TEST(Direction, oppositeIsConstexpr) {
    static_assert(opposite(Direction::up, Direction::down));
    static_assert(!opposite(Direction::up, Direction::left));
}

}  // namespace
}  // namespace SnakeCore
