#include <gtest/gtest.h>

#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Screens/Main/BoardWindow.hpp"

// CMakeLists.txt runs these tests at several scales of the screen.

namespace {

using SnakeCore::Game;

TEST(BoardScreen, showsTheSameAfterManyPartialRepaintsAsAfterAFullOne) {
    BoardWindow window(QSize(701, 563));
    Game game(28, 22);
    std::mt19937 generator(5);
    game.turn(SnakeCore::Direction::up);
    for (int step = 0; step < 60; ++step) {
        game.turn(alongCycle(game));
        game.step(generator);
        window.board().setGame(game);
        window.settle();
    }
    const QImage stepByStep = window.onScreen();

    window.board().update();
    window.settle();

    ASSERT_GT(game.score(), 0);
    EXPECT_EQ(stepByStep, window.onScreen());
    EXPECT_EQ(stepByStep, window.picture().copy(stepByStep.rect()));
}

TEST(BoardScreen, showsTheGameAgainAfterBeingIdle) {
    BoardWindow window(QSize(701, 563));
    window.board().setGame(Games::ofLength(20));
    window.settle();
    const QImage playing = window.onScreen();

    window.board().setIdle(true);
    window.board().setScrim(0.48);
    window.settle();
    const QImage idle = window.onScreen();
    window.board().setIdle(false);
    window.board().setScrim(0);
    window.settle();

    EXPECT_NE(idle, playing);
    EXPECT_EQ(window.onScreen(), playing);
}

}  // namespace
