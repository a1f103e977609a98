#include <gtest/gtest.h>

#include <QAccessible>

#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Painting/PictureDifference.hpp"
#include "Fernwick/Screens/Main/BoardWindow.hpp"
#include "Screens/Main/Board.hpp"

namespace {

using SnakeCore::Direction;
using SnakeCore::Game;

TEST(Board, repaintsNothingForAnEqualGame) {
    BoardWindow window;
    const Game game = Games::ofLength(10);
    window.board().setGame(game);
    window.settle();

    window.board().setGame(game);
    window.board().setIdle(false);
    window.board().setScrim(0);

    EXPECT_TRUE(window.paintedOnSettling().isEmpty());
}

TEST(Board, repaintsOnlyTheSurroundingsOfAStep) {
    BoardWindow window;
    Game game(28, 22);
    window.board().setGame(game);
    window.settle();
    game.turn(Direction::up);

    game.step();
    window.board().setGame(game);
    const QRegion painted = window.paintedOnSettling();

    EXPECT_FALSE(painted.isEmpty());
    EXPECT_LT(painted.boundingRect().width(), window.board().width() / 2);
    EXPECT_LT(painted.boundingRect().height(), window.board().height() / 2);
}

TEST(Board, showsTheSameAfterManyStepsAsANewBoard) {
    BoardWindow window;
    Game game(28, 22);
    std::mt19937 generator(5);
    for (int step = 0; step < 12; ++step) {
        game.turn(alongCycle(game));
        game.step(generator);
        window.board().setGame(game);
        window.settle();
    }
    BoardWindow another;

    another.board().setGame(game);

    EXPECT_EQ(window.picture(), another.picture());
}

TEST(Board, showsTheBackdropOutsideItsRoundCornersEvenWithASnakeThere) {
    BoardWindow window;
    const QImage ground = window.ground();
    Game game(28, 22);
    for (const Direction direction : {Direction::up, Direction::left}) {
        game.turn(direction);
        for (int i = 0; i < (direction == Direction::up ? 11 : 14); ++i) {
            game.step();
        }
    }
    ASSERT_EQ(game.snake().front(), (SnakeCore::Cell{0, 0}));

    window.board().setGame(game);
    window.board().setScrim(0.5);
    const QImage picture = window.picture();

    const QPoint corner = window.frame().topLeft().toPoint();
    for (const QPoint& outside : {QPoint(1, 1), QPoint(2, 3), QPoint(4, 2), QPoint(-1, 9)}) {
        EXPECT_EQ(picture.pixel(corner + outside), ground.pixel(corner + outside));
    }
    EXPECT_NE(picture.pixel(corner + QPoint(8, 8)), ground.pixel(corner + QPoint(8, 8)));
}

TEST(Board, equalsTheBackdropAlongAnEmptyEdge) {
    BoardWindow window;
    const QImage ground = window.ground();
    const QImage picture = window.picture();
    const QRect frame = window.frame().toAlignedRect();

    for (int x = frame.left(); x <= frame.right(); ++x) {
        for (const int y : {frame.top() - 1, frame.top(), frame.top() + 1, frame.bottom()}) {
            for (const int shift : {16, 8, 0}) {
                EXPECT_NEAR(channelOf(picture, x, y, shift), channelOf(ground, x, y, shift), 2);
            }
        }
    }
}

TEST(Board, darkensThePictureInsideTheFrameByTheScrim) {
    BoardWindow window;
    const QPoint middle = window.middleOf({13, 11});
    const int bright = channelOf(window.picture(), middle.x(), middle.y(), 8);

    window.board().setScrim(0.48);
    const QImage picture = window.picture();

    EXPECT_NEAR(channelOf(picture, middle.x(), middle.y(), 8), bright * 0.52, 2);
    EXPECT_EQ(picture.pixel(2, 2), window.ground().pixel(2, 2));
}

TEST(Board, isBlurredAndDimmedWhileIdleAndSharpAgainAfterwards) {
    BoardWindow window;
    const QImage sharp = window.picture();
    const QPoint band = window.middleOf({12, 11});
    const int bright = channelOf(sharp, band.x(), band.y(), 8);

    window.board().setIdle(true);
    const QImage idle = window.picture();
    window.board().setIdle(false);

    EXPECT_LT(channelOf(idle, band.x(), band.y(), 8), 24 + 0.4 * (bright - 24));
    EXPECT_GT(channelOf(idle, band.x(), band.y(), 8), 24 + 0.2 * (bright - 24));
    EXPECT_EQ(window.picture(), sharp);
}

TEST(Board, paintsNoSharpPictureBeforeTheSnakeMoves) {
    BoardWindow window(QSize(700, 560), true);
    window.board().setGame(Games::ofLength(30));
    window.board().setScrim(0.48);
    window.settle();
    const bool beforeTheRun = window.board().hasSharpPicture();

    window.board().setIdle(false);
    window.settle();

    EXPECT_FALSE(beforeTheRun);
    EXPECT_TRUE(window.board().hasSharpPicture());
}

TEST(Board, showsAGameThatChangedWhileItWasIdle) {
    BoardWindow window;
    window.board().setIdle(true);
    window.settle();
    window.board().setGame(Games::ofLength(30));
    window.settle();
    BoardWindow another;
    another.board().setGame(Games::ofLength(30));

    window.board().setIdle(false);
    window.board().setScrim(0);

    EXPECT_EQ(window.picture(), another.picture());
}

TEST(Board, showsTheSameIdlePictureHoweverOftenItIsPainted) {
    BoardWindow window(QSize(701, 563), true);
    window.board().setGame(Games::ofLength(30));
    window.settle();
    const QImage first = window.onScreen();
    for (int paint = 0; paint < 2; ++paint) {
        window.board().update();
        window.settle();

        EXPECT_EQ(window.onScreen(), first);
    }
    window.board().setGame(Games::ofLength(9));
    window.settle();

    EXPECT_NE(window.onScreen(), first);
}

TEST(Board, showsANewGameWhileIdle) {
    BoardWindow window;
    window.board().setIdle(true);
    window.settle();
    const QImage before = window.picture();

    window.board().setGame(Games::ofLength(30));

    EXPECT_NE(window.picture(), before);
}

TEST(Board, repaintsAtItsNewPlace) {
    BoardWindow window;
    const Game game = Games::ofLength(20);
    window.board().setGame(game);
    window.settle();

    window.resize(900, 700);
    window.settle();
    BoardWindow direct(QSize(900, 700));
    direct.board().setGame(game);

    EXPECT_EQ(window.picture(), direct.picture());
}

TEST(Board, namesScoreAndKeysToAssistiveTechnology) {
    BoardWindow window;
    window.board().setGame(Games::ofLength(6));

    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&window.board());

    EXPECT_EQ(accessible->role(), QAccessible::Graphic);
    EXPECT_EQ(accessible->text(QAccessible::Name).toStdString(),
              "Snake board. Score 20. Use arrow keys or W A S D to move.");
}

TEST(Board, hasAnAccessibleNameFromTheStart) {
    BoardWindow window;

    EXPECT_EQ(window.board().accessibleName().toStdString(),
              "Snake board. Score 0. Use arrow keys or W A S D to move.");
}

}  // namespace
