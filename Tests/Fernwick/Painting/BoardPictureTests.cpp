#include <gtest/gtest.h>

#include <QPaintEngine>
#include <cmath>
#include <vector>

#include "Fernwick/Painting/Games.hpp"
#include "Fernwick/Painting/Grids.hpp"
#include "Fernwick/Painting/PictureDifference.hpp"
#include "Fernwick/Painting/ReferencePainter.hpp"
#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Board/IdlePicture.hpp"
#include "Painting/Raster/GaussianBlur.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace {

using SnakeCore::Direction;
using SnakeCore::Game;

// The tolerance, in steps of 1/255 of a channel.
constexpr double largestMean = 1;
constexpr int largestStep = 24;

constexpr double cell = 13.37;

QImage paintedAnew(const Game& game, const Painting::PixelGrid& grid) {
    Painting::BoardPicture picture(grid);
    picture.show(game);
    return picture.image();
}

void expectLikeReference(const QImage& actual, const QImage& expected) {
    const PictureDifference apart = difference(actual, expected);
    EXPECT_LE(apart.mean, largestMean) << apart;
    EXPECT_LE(apart.largest, largestStep) << apart;
}

struct Case {
    std::size_t length;
    double scale;
};

class BoardPictureOf : public testing::TestWithParam<Case> {};

TEST_P(BoardPictureOf, equalsTheReferencePainter) {
    const Game game = Games::ofLength(GetParam().length);
    const Painting::PixelGrid grid = Grids::usual(cell, GetParam().scale);

    expectLikeReference(paintedAnew(game, grid), ReferencePainter::paint(game, grid));
}

INSTANTIATE_TEST_SUITE_P(LengthsAndScales, BoardPictureOf,
                         testing::Values(Case{4, 1}, Case{4, 1.25}, Case{4, 1.5}, Case{4, 2},
                                         Case{4, 3}, Case{9, 2}, Case{60, 1}, Case{60, 1.5},
                                         Case{60, 2}, Case{160, 1.25}, Case{400, 1}, Case{400, 2},
                                         Case{615, 1.5}, Case{616, 1}, Case{616, 2}),
                         [](const auto& one) {
                             return "length" + std::to_string(one.param.length) + "scale" +
                                    std::to_string(static_cast<int>(one.param.scale * 100));
                         });

TEST(BoardPicture, equalsTheReferencePainterInEveryDirection) {
    for (const Direction direction :
         {Direction::up, Direction::down, Direction::left, Direction::right}) {
        const Game game = Games::heading(direction);
        const Painting::PixelGrid grid = Grids::usual(20, 1);

        expectLikeReference(paintedAnew(game, grid), ReferencePainter::paint(game, grid));
    }
}

TEST(BoardPicture, isBlurredAndDimmedLikeTheReferencePainterWhileIdle) {
    for (const double scale : {1.0, 1.5, 2.0}) {
        const Game game = Games::ofLength(60);
        const Painting::PixelGrid grid = Grids::usual(cell, scale);

        const QImage idle = Painting::IdlePicture(game, grid).image();

        expectLikeReference(idle, ReferencePainter::paintIdle(game, grid));
    }
}

// One channel of the sharp picture minus the plain fill, averaged over blocks of `step` pixels.
Painting::Plane<float> averaged(const QImage& sharp, int shift, int step) {
    const int fill = static_cast<int>((Garden::soil.rgb() >> shift) & 0xFFU);
    Painting::Plane<float> samples((sharp.width() + step - 1) / step,
                                   (sharp.height() + step - 1) / step);
    for (int y = 0; y < sharp.height(); ++y) {
        for (int x = 0; x < sharp.width(); ++x) {
            samples.at(x / step, y / step) +=
                static_cast<float>(channelOf(sharp, x, y, shift) - fill) /
                static_cast<float>(step * step);
        }
    }
    return samples;
}

// The largest difference of a channel of the idle picture from the sharp one, blurred and dimmed.
double differenceFromBlurred(const QImage& idle, const QImage& sharp, int shift, int step,
                             double sigma) {
    const auto fill = static_cast<float>((Garden::soil.rgb() >> shift) & 0xFFU);
    Painting::Plane<float> samples = averaged(sharp, shift, step);
    Painting::gaussianBlur({&samples, 1}, std::sqrt(sigma * sigma / (step * step) - 0.25));
    const Painting::SampleAxis columns(idle.width(), samples.width(), step);
    const Painting::SampleAxis rows(idle.height(), samples.height(), step);
    Painting::UpsampledRows<float> blurred(samples, columns, 0, idle.width());
    double largest = 0;
    for (int y = 0; y < idle.height(); ++y) {
        const auto [sample, weight] = rows[y];
        blurred.seek(sample);
        for (int x = 0; x < idle.width(); ++x) {
            const float value = std::lerp(blurred.upper()[x], blurred.lower()[x], weight);
            const double apart = channelOf(idle, x, y, shift) - (fill + 0.4 * value);
            largest = std::max(largest, std::abs(apart));
        }
    }
    return largest;
}

TEST(IdlePicture, isWithinOneStepOfTheFullSizePictureBlurred) {
    for (const auto& [scale, step] : {std::pair(1.0, 3), std::pair(1.5, 5), std::pair(2.0, 6)}) {
        for (const double edge : {cell, 30.2}) {
            const Game game = Games::ofLength(60);
            const Painting::PixelGrid grid = Grids::usual(edge, scale);
            const QImage sharp = paintedAnew(game, grid);

            const QImage idle = Painting::IdlePicture(game, grid).image();

            for (const int shift : {16, 8, 0}) {
                // Rounding with dither may add one step.
                EXPECT_LE(differenceFromBlurred(idle, sharp, shift, step, 5 * scale), 2)
                    << scale << ", " << edge << ", " << shift;
            }
        }
    }
}

TEST(IdlePicture, isTheSameWhenPaintedInPieces) {
    const Painting::PixelGrid grid = Grids::usual(cell, 1.5);
    const Painting::IdlePicture idle(Games::ofLength(60), grid);
    QImage inPieces(grid.size, QImage::Format_RGB32);
    QPainter painter(&inPieces);
    for (int y = 0; y < grid.size.height(); y += 45) {
        for (int x = 0; x < grid.size.width(); x += 71) {
            idle.paint(painter, QRect(x, y, 71, 45));
        }
    }
    painter.end();

    EXPECT_EQ(inPieces, idle.image());
}

TEST(IdlePicture, isTheSameWhenThePaintEventIsClipped) {
    const Painting::PixelGrid grid = Grids::usual(cell, 1.5);
    const Painting::IdlePicture idle(Games::ofLength(60), grid);
    const QRect clip(150, 130, 220, 190);
    QImage clipped(grid.size, QImage::Format_RGB32);
    QPainter painter(&clipped);
    painter.paintEngine()->setSystemClip(clip);
    idle.paint(painter, clipped.rect());
    painter.end();

    EXPECT_EQ(clipped.copy(clip), idle.image().copy(clip));
}

QRegion differingPixels(const QImage& left, const QImage& right) {
    QRegion region;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y)) {
                region += QRect(x, y, 1, 1);
            }
        }
    }
    return region;
}

TEST(BoardPicture, equalsANewPictureAfterManySteps) {
    const Painting::PixelGrid grid = Grids::usual(9.3, 1);
    Painting::BoardPicture picture(grid);
    Game game(28, 22);
    std::mt19937 generator(3);
    for (int step = 0; step < 150; ++step) {
        game.turn(alongCycle(game));
        game.step(generator);
        picture.show(game);
    }

    EXPECT_EQ(picture.image(), paintedAnew(game, grid));
}

TEST(BoardPicture, reportsEveryPixelThatChanged) {
    const Painting::PixelGrid grid = Grids::usual(16.4, 1);
    Painting::BoardPicture picture(grid);
    const Game fresh(28, 22);
    Game turned = fresh;
    turned.turn(Direction::up);
    turned.step();
    Game atFruit = fresh;
    for (int i = 0; i < 4; ++i) {
        atFruit.step();
    }
    picture.show(fresh);
    for (const Game& game : {turned, atFruit, Games::ofLength(200), turned, fresh}) {
        const QImage before = picture.image();
        const QRegion reported = picture.show(game);

        EXPECT_TRUE((differingPixels(before, picture.image()) - reported).isEmpty());
        EXPECT_EQ(picture.image(), paintedAnew(game, grid));
    }
}

TEST(BoardPicture, isTheSameWhenPaintedInPieces) {
    const Game game = Games::ofLength(200);
    const Painting::PixelGrid grid = Grids::usual(13.37, 1);
    Painting::BoardPicture picture(grid);
    picture.show(game);
    QImage inPieces(grid.size, QImage::Format_RGB32);
    QPainter painter(&inPieces);
    for (int y = 0; y < grid.size.height(); y += 45) {
        for (int x = 0; x < grid.size.width(); x += 71) {
            picture.paint(painter, QRect(x, y, 71, 45) & inPieces.rect());
        }
    }
    painter.end();

    EXPECT_EQ(inPieces, picture.image());
}

TEST(BoardPicture, movesOnlyTheEyesWhenTheSnakeTurnsIntoAWall) {
    Game game(28, 22);
    game.turn(Direction::up);
    for (int i = 0; i < 11; ++i) {
        game.step();
    }
    game.turn(Direction::left);
    for (int i = 0; i < 14; ++i) {
        game.step();
    }
    ASSERT_EQ(game.snake().front(), (SnakeCore::Cell{0, 0}));
    const Painting::PixelGrid grid = Grids::usual(18, 1);
    Painting::BoardPicture picture(grid);
    picture.show(game);
    const QImage before = picture.image();
    game.turn(Direction::up);

    game.step();
    picture.show(game);

    ASSERT_TRUE(game.ended());
    EXPECT_EQ(picture.image(), paintedAnew(game, grid));
    const QRegion changed = differingPixels(before, picture.image());
    EXPECT_FALSE(changed.isEmpty());
    EXPECT_TRUE((changed - grid.tiles({0, 0, 1, 1})).isEmpty());
}

TEST(BoardPicture, changesAtMostATenthOfTheBoardInAStepOfAShortSnake) {
    const Painting::PixelGrid grid = Grids::usual(18, 1);
    Painting::BoardPicture picture(grid);
    Game game(28, 22);
    picture.show(game);

    game.step();
    const QRect changed = picture.show(game).boundingRect();

    EXPECT_LE(changed.width() * changed.height(), grid.size.width() * grid.size.height() / 10);
    EXPECT_TRUE(picture.show(game).isEmpty());
}

}  // namespace
