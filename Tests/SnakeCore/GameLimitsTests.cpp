#include <gtest/gtest.h>

#include <limits>

#include "SnakeCore/Detail/Checked.hpp"
#include "SnakeCore/Game.hpp"

namespace SnakeCore {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

TEST(GameLimitsDeathTest, abortsBelowSixColumns) {
    EXPECT_DEATH(Game(5, 4), "");
    EXPECT_DEATH(Game(5, 22), "");
    EXPECT_DEATH(Game(0, 22), "");
    EXPECT_DEATH(Game(-28, 22), "");
    EXPECT_DEATH(Game(smallest, 22), "");
}

TEST(GameLimitsDeathTest, abortsBelowFourRows) {
    EXPECT_DEATH(Game(6, 3), "");
    EXPECT_DEATH(Game(28, 3), "");
    EXPECT_DEATH(Game(28, 0), "");
    EXPECT_DEATH(Game(28, -22), "");
    EXPECT_DEATH(Game(28, smallest), "");
}

TEST(GameLimitsDeathTest, abortsIfTheNumberOfCellsOverflows) {
    EXPECT_DEATH(Game(largest, 4), "");
    EXPECT_DEATH(Game(std::int64_t{1} << 32, std::int64_t{1} << 32), "");
}

TEST(GameLimitsDeathTest, checkedArithmeticAbortsOnOverflow) {
    EXPECT_DEATH(static_cast<void>(Detail::checkedSum(largest, 1)), "");
    EXPECT_DEATH(static_cast<void>(Detail::checkedSum(smallest, -1)), "");
    EXPECT_DEATH(static_cast<void>(Detail::checkedProduct(largest, 2)), "");
    EXPECT_DEATH(static_cast<void>(Detail::checkedProduct(smallest, -1)), "");
}

TEST(GameLimits, theSmallestBoardIsPlayable) {
    Game game(6, 4);

    game.step();

    EXPECT_FALSE(game.ended());
}

TEST(GameLimits, checkedArithmeticIsExactUpToTheLimits) {
    EXPECT_EQ(Detail::checkedSum(largest - 1, 1), largest);
    EXPECT_EQ(Detail::checkedSum(smallest + 1, -1), smallest);
    EXPECT_EQ(Detail::checkedProduct(largest, -1), -largest);
    EXPECT_EQ(Detail::checkedProduct(28, 22), 616);
}

TEST(GameLimits, theSnakeStaysOnAVeryWideBoard) {
    Game game(10'000, 4);
    game.turn(Direction::up);
    for (int i = 0; i < 2; ++i) {
        game.step();
    }

    EXPECT_EQ(game.snake().front(), (Cell{5000, 0}));
    game.step();
    EXPECT_TRUE(game.ended());
}

}  // namespace
}  // namespace SnakeCore
