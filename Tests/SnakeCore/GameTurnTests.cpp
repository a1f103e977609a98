#include <gtest/gtest.h>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"

namespace SnakeCore {
namespace {

TEST(GameTurn, dropsAReversal) {
    Game game(28, 22);

    game.turn(Direction::left);
    game.step();

    EXPECT_EQ(game.direction(), Direction::right);
    EXPECT_EQ(game.snake().front(), (Cell{15, 11}));
}

TEST(GameTurn, queuesTwoTurnsAndMakesOnePerStep) {
    Game game(28, 22);

    game.turn(Direction::up);
    game.turn(Direction::left);

    EXPECT_EQ(game.direction(), Direction::right);
    game.step();
    EXPECT_EQ(game.direction(), Direction::up);
    EXPECT_EQ(game.snake().front(), (Cell{14, 10}));
    game.step();
    EXPECT_EQ(game.direction(), Direction::left);
    EXPECT_EQ(game.snake().front(), (Cell{13, 10}));
}

TEST(GameTurn, dropsAThirdTurnWithinOneStep) {
    Game game(28, 22);

    game.turn(Direction::up);
    game.turn(Direction::left);
    game.turn(Direction::down);
    step(game, 3);

    EXPECT_EQ(game.snake().front(), (Cell{12, 10}));
}

TEST(GameTurn, acceptsAnotherTurnAfterAStep) {
    Game game(28, 22);

    game.turn(Direction::up);
    game.turn(Direction::left);
    game.step();
    game.turn(Direction::down);
    step(game, 2);

    EXPECT_EQ(game.direction(), Direction::down);
}

TEST(GameTurn, dropsATurnInTheCurrentDirection) {
    Game game(28, 22);
    const Game before = game;

    game.turn(Direction::right);

    EXPECT_EQ(game, before);
}

TEST(GameTurn, dropsARepeatOfTheQueuedTurn) {
    Game once(28, 22);
    Game twice(28, 22);

    once.turn(Direction::up);
    twice.turn(Direction::up);
    twice.turn(Direction::up);

    EXPECT_EQ(once, twice);
}

TEST(GameTurn, comparesATurnWithTheLastQueuedOne) {
    Game game(28, 22);

    game.turn(Direction::up);
    game.turn(Direction::down);
    game.turn(Direction::right);
    step(game, 2);

    EXPECT_EQ(game.direction(), Direction::right);
    EXPECT_EQ(game.snake().front(), (Cell{15, 10}));
}

TEST(GameTurn, keepsTheQueueAfterTheEnd) {
    Game game(6, 4);
    game.turn(Direction::up);
    step(game, 3);
    game.turn(Direction::left);
    const Game before = game;

    game.step();

    EXPECT_EQ(game, before);
    EXPECT_EQ(game.direction(), Direction::up);
}

TEST(GameTurn, isPartOfTheComparisonOfGamesWhileQueued) {
    Game game(28, 22);
    const Game before = game;

    game.turn(Direction::up);

    EXPECT_NE(game, before);
}

TEST(GameTurn, isForgottenOnceMade) {
    Game turned(28, 22);
    Game straight(28, 22);
    turned.turn(Direction::up);
    turned.turn(Direction::right);
    step(turned, 2);
    straight.turn(Direction::up);
    straight.step();
    straight.turn(Direction::right);
    straight.step();

    EXPECT_EQ(turned, straight);
}

}  // namespace
}  // namespace SnakeCore
