#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <concepts>
#include <random>
#include <ranges>
#include <vector>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"

namespace SnakeCore {
namespace {

static_assert(std::copyable<Game> && std::equality_comparable<Game>);
static_assert(std::ranges::random_access_range<decltype(Game(6, 4).snake())>);

TEST(Game, startsAtTheLeftWallOnTheSmallestBoard) {
    const Game game(6, 4);

    EXPECT_EQ(cellsOf(game), (Cells{{3, 2}, {2, 2}, {1, 2}, {0, 2}}));
    EXPECT_EQ(game.direction(), Direction::right);
    EXPECT_EQ(game.food(), (Cell{5, 2}));
    EXPECT_EQ(game.score(), 0);
    EXPECT_FALSE(game.ended());
    EXPECT_FALSE(game.won());
}

TEST(Game, startsAtTheCentreRoundedDownOnAnOddBoard) {
    const Game game(7, 5);

    EXPECT_EQ(game.snake().front(), (Cell{3, 2}));
    EXPECT_EQ(game.food(), (Cell{6, 2}));
}

TEST(Game, startsFourCellsFromTheFruitOnA28By22Board) {
    const Game game(28, 22);

    EXPECT_EQ(game.width(), 28);
    EXPECT_EQ(game.height(), 22);
    EXPECT_EQ(cellsOf(game), (Cells{{14, 11}, {13, 11}, {12, 11}, {11, 11}}));
    EXPECT_EQ(game.food(), (Cell{18, 11}));
}

TEST(Game, alwaysStartsInTheSameState) {
    EXPECT_EQ(Game(28, 22), Game(28, 22));
}

TEST(Game, stepsOneCellInItsDirection) {
    Game game(28, 22);

    game.step();

    EXPECT_EQ(cellsOf(game), (Cells{{15, 11}, {14, 11}, {13, 11}, {12, 11}}));
}

TEST(Game, leavesTheSnakeUnchangedWhenItHitsAWall) {
    Game game(28, 22);
    game.turn(Direction::up);
    step(game, 11);
    ASSERT_FALSE(game.ended());
    const Cells before = cellsOf(game);

    game.step();

    EXPECT_TRUE(game.ended());
    EXPECT_FALSE(game.won());
    EXPECT_EQ(cellsOf(game), before);
    EXPECT_EQ(game.food(), (Cell{18, 11}));
    EXPECT_EQ(game.score(), 0);
}

TEST(Game, endsAtEachOfTheFourWalls) {
    const auto stepsToTheEnd = [](std::initializer_list<Direction> turns) {
        Game game(8, 6);
        std::ranges::for_each(turns, [&](Direction direction) { game.turn(direction); });
        int steps = 0;
        for (; !game.ended(); ++steps) {
            game.step();
        }
        return steps;
    };

    EXPECT_EQ(stepsToTheEnd({Direction::up}), 4);
    EXPECT_EQ(stepsToTheEnd({Direction::down}), 3);
    EXPECT_EQ(stepsToTheEnd({}), 4);
    EXPECT_EQ(stepsToTheEnd({Direction::up, Direction::left}), 6);
}

TEST(Game, doesNotChangeAfterItsEnd) {
    Game game(6, 4);
    game.turn(Direction::up);
    step(game, 3);
    ASSERT_TRUE(game.ended());
    const Game before = game;

    step(game, 3);

    EXPECT_EQ(game, before);
}

TEST(Game, hasTheDirectionOfTheStepThatEndedIt) {
    Game game(6, 4);
    step(game, 2);
    game.turn(Direction::down);
    step(game, 1);
    game.turn(Direction::right);

    game.step();

    EXPECT_TRUE(game.ended());
    EXPECT_EQ(game.direction(), Direction::right);
}

TEST(Game, letsTheHeadEnterTheCellThatTheTailLeaves) {
    constexpr std::array cycle{Direction::down, Direction::left, Direction::up, Direction::right};
    Game game(28, 22);

    for (std::size_t i = 0; i < 1000; ++i) {
        game.turn(cycle[i % cycle.size()]);
        game.step();
        ASSERT_FALSE(game.ended()) << "step " << i;
    }

    EXPECT_EQ(game.snake().size(), 4U);
}

TEST(Game, endsWhenTheHeadHitsTheBody) {
    std::mt19937 generator(1);
    Game game(28, 22);
    step(game, 4, generator);
    ASSERT_EQ(game.snake().size(), 5U);
    for (const Direction direction : {Direction::down, Direction::left}) {
        game.turn(direction);
        game.step(generator);
    }
    game.turn(Direction::up);
    const Cells before = cellsOf(game);

    game.step(generator);

    EXPECT_TRUE(game.ended());
    EXPECT_FALSE(game.won());
    EXPECT_EQ(cellsOf(game), before);
    EXPECT_EQ(game.score(), 10);
}

TEST(Game, growsByOneAndScoresTenForAFruit) {
    Game game(28, 22);

    step(game, 4);

    EXPECT_EQ(game.score(), 10);
    EXPECT_EQ(cellsOf(game), (Cells{{18, 11}, {17, 11}, {16, 11}, {15, 11}, {14, 11}}));
    EXPECT_EQ(std::ranges::count(game.snake(), game.food()), 0);
}

TEST(Game, placesNewFruitsAtRandom) {
    std::vector<Cell> fruits;
    for (int i = 0; i < 20; ++i) {
        Game game(1000, 1000);
        step(game, 4);
        fruits.push_back(game.food());
    }

    EXPECT_FALSE(std::ranges::all_of(fruits, [&](Cell fruit) { return fruit == fruits[0]; }));
}

TEST(Game, copiesAreIndependent) {
    Game game(28, 22);
    game.turn(Direction::up);
    const Game copy = game;

    game.step();

    EXPECT_NE(game, copy);
    EXPECT_EQ(copy.snake().front(), (Cell{14, 11}));
}

}  // namespace
}  // namespace SnakeCore
