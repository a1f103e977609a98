#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <unordered_set>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"
#include "Support/ClosedWalk.hpp"

namespace SnakeCore {
namespace {

Game wonGame(std::int64_t width, std::int64_t height) {
    std::mt19937_64 generator(3);
    Game game(width, height);
    while (!game.ended()) {
        game.turn(alongCycle(game));
        game.step(generator);
    }
    return game;
}

TEST(WonGame, fillsA28By22BoardWithAScoreOf6120) {
    const Game game = wonGame(28, 22);

    EXPECT_TRUE(game.ended());
    EXPECT_TRUE(game.won());
    EXPECT_EQ(game.score(), 6120);
    EXPECT_EQ(game.snake().size(), 616U);
    EXPECT_EQ(std::unordered_set<Cell>(game.snake().begin(), game.snake().end()).size(), 616U);
}

TEST(WonGame, canBeWonWithARandomDevice) {
    Game game(28, 22);
    while (!game.ended()) {
        game.turn(alongCycle(game));
        game.step();
    }

    EXPECT_TRUE(game.won());
    EXPECT_EQ(game.score(), 6120);
}

TEST(WonGame, keepsTheLastFruitUnderTheHead) {
    const Game game = wonGame(28, 22);

    EXPECT_EQ(game.food(), game.snake().front());
}

TEST(WonGame, scoresTheLastFruitOnTheSmallestBoard) {
    const Game game = wonGame(6, 4);

    EXPECT_TRUE(game.won());
    EXPECT_EQ(game.score(), 200);
    EXPECT_EQ(game.food(), game.snake().front());
}

TEST(WonGame, doesNotChangeAfterTheWin) {
    Game game = wonGame(6, 4);
    const Game before = game;

    step(game, 5);

    EXPECT_EQ(game, before);
}

TEST(WonGame, followsTheRulesAtEveryStep) {
    std::mt19937_64 generator(11);
    Game game(12, 10);
    while (!game.ended()) {
        const Game before = game;
        game.turn(alongCycle(game));
        game.step(generator);
        const bool ate = game.snake().front() == before.food();

        ASSERT_EQ(game.score(), before.score() + (ate ? 10 : 0));
        ASSERT_EQ(game.snake().size(), before.snake().size() + (ate ? 1 : 0));
        ASSERT_EQ(game.won(), game.snake().size() == 120U);
        ASSERT_EQ(game.ended(), game.won());
        ASSERT_EQ(std::ranges::count(game.snake(), game.food()), game.won() ? 1 : 0);
    }
}

}  // namespace
}  // namespace SnakeCore
