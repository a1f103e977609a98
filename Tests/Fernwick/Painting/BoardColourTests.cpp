#include <gtest/gtest.h>

#include <cmath>

#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Painting/PictureDifference.hpp"
#include "Painting/Board/BoardPicture.hpp"

namespace {

using SnakeCore::Direction;
using SnakeCore::Game;

// Cells of 40 pixels, aligned to whole pixels, at two pixels per point.
constexpr Painting::PixelGrid largeGrid{QSize(28 * 40, 22 * 40), QPointF(0, 0), 40, 2, 28, 22};

QImage painted(const Game& game) {
    Painting::BoardPicture picture(largeGrid);
    picture.show(game);
    return picture.image();
}

// The dither may add 1/255.
void expectColour(const QImage& picture, int x, int y, double red, double green, double blue) {
    EXPECT_NEAR(channelOf(picture, x, y, 16), red * 255, 1.1) << x << ", " << y;
    EXPECT_NEAR(channelOf(picture, x, y, 8), green * 255, 1.1) << x << ", " << y;
    EXPECT_NEAR(channelOf(picture, x, y, 0), blue * 255, 1.1) << x << ", " << y;
}

// The area that is painted mint on plain fill, in pixels, measured in the green channel.
double mintIn(const QImage& picture, const QRect& area) {
    double sum = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            sum += channelOf(picture, x, y, 8) - 24;
        }
    }
    return sum / (240 - 24);
}

TEST(BoardColours, areThoseOfTheFillBetweenTheDots) {
    const QImage picture = painted(Game(28, 22));

    expectColour(picture, 0, 0, 0.055, 0.095, 0.076);
    expectColour(picture, 40 * 3, 40 * 2, 0.055, 0.095, 0.076);
}

TEST(BoardColours, haveADotOf1Point6PointsInTheCentreOfEveryFreeCell) {
    const QImage picture = painted(Game(28, 22));
    const double area = M_PI * 1.6 * 1.6;  // the radius is 1.6 pixels at this scale

    for (int row = 0; row < 22; row += 3) {
        for (const int column : {0, 1, 9, 27}) {
            if (row > 6 && row < 16) {
                continue;
            }
            const QRect around(column * 40 + 16, row * 40 + 16, 8, 8);
            EXPECT_NEAR(mintIn(picture, around), area * 0.12, 0.1) << column << ", " << row;
            expectColour(picture, column * 40 + 19, row * 40 + 19, 0.055 + 0.12 * (0.65 - 0.055),
                         0.095 + 0.12 * (0.94 - 0.095), 0.076 + 0.12 * (0.64 - 0.076));
        }
    }
}

TEST(BoardColours, haveDotsOfTheSameSizeOnASmallerBoard) {
    Painting::PixelGrid small = largeGrid;
    small.size /= 2;
    small.cell /= 2;
    Painting::BoardPicture picture(small);
    picture.show(Game(28, 22));

    EXPECT_NEAR(mintIn(picture.image(), {6, 6, 8, 8}), M_PI * 1.6 * 1.6 * 0.12, 0.1);
}

void expectSamePixels(const QImage& actual, const QImage& expected) {
    for (int y = 0; y < expected.height(); ++y) {
        for (int x = 0; x < expected.width(); ++x) {
            // The dither may add 1/255.
            ASSERT_NEAR(channelOf(actual, x, y, 8), channelOf(expected, x, y, 8), 1);
        }
    }
}

TEST(BoardColours, haveTheSameDotInEveryCellAtScale1) {
    Painting::PixelGrid grid = largeGrid;
    grid.scale = 1;
    grid.cell = 27.37;
    Painting::BoardPicture board(grid);
    board.show(Game(28, 22));
    const QImage picture = board.image();
    const auto dotAt = [&](int column, int row) {
        const QPointF centre = grid.centre({column, row});
        return picture.copy(static_cast<int>(centre.x()) - 2, static_cast<int>(centre.y()) - 2, 5,
                            5);
    };

    for (int column = 0; column < 28; ++column) {
        // Rows without the fruit and the snake.
        for (const int row : {0, 1, 2, 3, 19, 20, 21}) {
            expectSamePixels(dotAt(column, row), dotAt(0, 0));
        }
    }
}

TEST(BoardColours, haveAFruit0Point56CellsWide) {
    const QImage picture = painted(Game(28, 22));
    const int x = 18 * 40 + 20;
    const int y = 11 * 40 + 20;

    expectColour(picture, x, y, 1, 0.52, 0.39);
    expectColour(picture, x - 10, y, 1, 0.52, 0.39);
    expectColour(picture, x + 9, y, 1, 0.52, 0.39);
    expectColour(picture, x, y + 9, 1, 0.52, 0.39);
    EXPECT_LT(channelOf(picture, x - 13, y, 16), 60);
    EXPECT_LT(channelOf(picture, x, y + 13, 16), 60);
}

TEST(BoardColours, haveAnOrangeGlowAroundTheFruitThatFades) {
    const QImage picture = painted(Game(28, 22));
    const int x = 18 * 40 + 20;
    const int y = 11 * 40 + 20;

    // A disc of radius 0.28 cells, blurred with a sigma of 0.5 cells, near the disc's edge.
    EXPECT_NEAR(channelOf(picture, x, y + 14, 16), 14 + (255 - 14) * 0.55 * 0.12, 3);
    EXPECT_GT(channelOf(picture, x, y + 14, 16), channelOf(picture, x, y + 30, 16));
    EXPECT_GT(channelOf(picture, x, y + 30, 16), channelOf(picture, x, y + 30, 0));
    EXPECT_NEAR(channelOf(picture, x - 2, y + 90, 16), 14, 1);
}

TEST(BoardColours, haveAStemTwoPointsWideThatRisesFromTheFruit) {
    const QImage picture = painted(Game(28, 22));
    const int x = 18 * 40 + 20;
    const int y = 11 * 40 + 20;

    expectColour(picture, x, y - 13, 0.65, 0.94, 0.64);
    expectColour(picture, x + 8, y - 20, 0.65, 0.94, 0.64);
    EXPECT_LT(channelOf(picture, x - 4, y - 13, 8), 60);
    EXPECT_LT(channelOf(picture, x + 8, y - 15, 8), 60);
}

TEST(BoardColours, shadeTheSnakeFromDeepGreenAtTheTailToMintAtTheHead) {
    const QImage picture = painted(Game(28, 22));
    const int y = 11 * 40 + 20;
    const int tail = 11 * 40 + 20;
    const int head = 14 * 40 + 20;

    expectColour(picture, tail - 8, y, 0.23, 0.58, 0.40);
    expectColour(picture, tail, y, 0.23, 0.58, 0.40);
    const double half = (60 + 0.5) / 120;
    expectColour(picture, (tail + head) / 2, y, 0.23 + half * (0.65 - 0.23),
                 0.58 + half * (0.94 - 0.58), 0.40 + half * (0.64 - 0.40));
    expectColour(picture, head, y, 0.65, 0.94, 0.64);
    expectColour(picture, head + 12, y, 0.65, 0.94, 0.64);
}

TEST(BoardColours, haveASnake0Point74CellsWideWithRoundEnds) {
    const QImage picture = painted(Game(28, 22));
    const int y = 11 * 40 + 20;

    for (const int x : {11 * 40 + 20, 12 * 40 + 35, 13 * 40}) {
        EXPECT_GT(channelOf(picture, x, y - 14, 8), 140);
        EXPECT_LT(channelOf(picture, x, y - 16, 8), 90);
        EXPECT_GT(channelOf(picture, x, y + 13, 8), 140);
        EXPECT_LT(channelOf(picture, x, y + 15, 8), 90);
    }
    EXPECT_GT(channelOf(picture, 11 * 40 + 20 - 14, y, 8), 140);
    EXPECT_LT(channelOf(picture, 11 * 40 + 20 - 16, y, 8), 90);
    EXPECT_LT(channelOf(picture, 11 * 40 + 20 - 13, y - 13, 8), 90);
}

TEST(BoardColours, leaveAGapBetweenParallelRunsOfTheSnake) {
    const Game game = Games::ofLength(160);
    const QImage picture = painted(game);
    const SnakeCore::Cell middle = game.snake()[60];

    const int x = static_cast<int>(middle.x) * 40 + 20;
    const int y = static_cast<int>(middle.y) * 40;
    EXPECT_LT(channelOf(picture, x, y, 8), 120);
    EXPECT_LT(channelOf(picture, x, y + 40, 8), 120);
    EXPECT_GT(channelOf(picture, x, y + 20, 8), 140);
}

TEST(BoardColours, haveTwoEyesSideBySideInFrontOfTheHeadsCentre) {
    struct Look {
        Direction direction;
        QPointF first;
        QPointF second;
    };
    const Look looks[] = {{Direction::up, {-0.16, -0.15}, {0.16, -0.15}},
                          {Direction::down, {-0.16, 0.15}, {0.16, 0.15}},
                          {Direction::left, {-0.15, -0.16}, {-0.15, 0.16}},
                          {Direction::right, {0.15, -0.16}, {0.15, 0.16}}};
    for (const Look& look : looks) {
        const Game game = Games::heading(look.direction);
        const QImage picture = painted(game);
        const QPointF head = largeGrid.centre(game.snake().front());
        for (const QPointF& eye : {look.first, look.second}) {
            const QPoint dark = (head + eye * 40 - QPointF(0.5, 0.5)).toPoint();
            EXPECT_LT(channelOf(picture, dark.x(), dark.y(), 8), 0.3 * 240);
            const QPoint mirrored = (head - eye * 40 - QPointF(0.5, 0.5)).toPoint();
            const QPoint bright = (head + eye * 16 - QPointF(0.5, 0.5)).toPoint();
            EXPECT_GT(channelOf(picture, mirrored.x(), mirrored.y(), 8), 180);
            EXPECT_GT(channelOf(picture, bright.x(), bright.y(), 8), 180);
        }
    }
}

TEST(BoardColours, keepTheEyesInPlaceWhileATurnIsPending) {
    Game game(28, 22);
    const QImage before = painted(game);
    game.turn(Direction::up);

    EXPECT_EQ(painted(game), before);
}

}  // namespace
