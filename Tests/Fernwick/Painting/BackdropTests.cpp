#include <gtest/gtest.h>

#include <QPaintEngine>
#include <cmath>

#include "Fernwick/Painting/PictureDifference.hpp"
#include "Painting/Ground/Backdrop.hpp"

namespace {

constexpr QSize window(1400, 900);
constexpr QRectF frame(500.5, 200, 560, 440);

QImage groundOf(const QSize& size, double scale, const QRectF& board) {
    Painting::Backdrop backdrop;
    backdrop.fit(size, scale, board);
    return backdrop.image(backdrop.bounds());
}

// The mean of a channel over a square, which evens out the dither.
double meanAround(const QImage& picture, int x, int y, int shift) {
    constexpr int reach = 8;
    double sum = 0;
    for (int row = y - reach; row < y + reach; ++row) {
        for (int column = x - reach; column < x + reach; ++column) {
            sum += channelOf(picture, column, row, shift);
        }
    }
    return sum / (4 * reach * reach);
}

void expectMean(const QImage& picture, int x, int y, double red, double green, double blue) {
    EXPECT_NEAR(meanAround(picture, x, y, 16), red * 255, 0.6) << x << ", " << y;
    EXPECT_NEAR(meanAround(picture, x, y, 8), green * 255, 0.6) << x << ", " << y;
    EXPECT_NEAR(meanAround(picture, x, y, 0), blue * 255, 0.6) << x << ", " << y;
}

void expectLitNight(const QImage& picture, int x, int y, double scale) {
    const double distance = std::hypot(x, y) / scale;
    const double light = std::max(1 - distance / 800, 0.0) * 0.075;
    expectMean(picture, x, y, 0.035 + light * (0.65 - 0.035), 0.065 + light * (0.94 - 0.065),
               0.053 + light * (0.64 - 0.053));
}

TEST(Backdrop, coversTheWindowsDevicePixelsRoundedUp) {
    EXPECT_EQ(groundOf({101, 51}, 1.5, {}).size(), QSize(152, 77));
    EXPECT_EQ(groundOf({101, 51}, 2, {}).size(), QSize(202, 102));
}

TEST(Backdrop, isDarkWithMintLightFadingFromTheCorner) {
    for (const double scale : {1.0, 2.0}) {
        const QImage picture = groundOf(window, scale, frame);

        for (const QPoint& point : {QPoint(8, 8), QPoint(100, 300), QPoint(350, 40),
                                    QPoint(300, 700), QPoint(790, 60), QPoint(1380, 30)}) {
            expectLitNight(picture, static_cast<int>(point.x() * scale),
                           static_cast<int>(point.y() * scale), scale);
        }
    }
}

TEST(Backdrop, dithersSlowGradientsSoThatTheyShowNoBands) {
    const QImage picture = groundOf(window, 1, frame);

    int longestRun = 0;
    int run = 0;
    for (int x = 1; x < 450; ++x) {
        run = channelOf(picture, x, 300, 8) == channelOf(picture, x - 1, 300, 8) ? run + 1 : 0;
        longestRun = std::max(longestRun, run);
    }
    // The light fades by 1/255 over 45 points or more. Without dither each step would be a band.
    EXPECT_LT(longestRun, 40);
}

TEST(Backdrop, fillsTheFrameWithThePlainBoardColour) {
    const QImage picture = groundOf(window, 1, frame);

    for (const QPoint& point : {QPoint(510, 240), QPoint(780, 420), QPoint(1050, 620)}) {
        EXPECT_EQ(picture.pixel(point), qRgb(14, 24, 19));
    }
}

TEST(Backdrop, strokesTheFrameOnePixelWideAtScale1) {
    for (const double offset : {0.0, 0.3, 0.5, 0.8}) {
        const QImage picture = groundOf(window, 1, frame.translated(offset, offset / 2));
        const auto isStroke = [&](int x, int y) { return channelOf(picture, x, y, 8) >= 45; };

        int columns = 0;
        for (int x = 495; x < 1070; ++x) {
            columns += isStroke(x, 420) ? 1 : 0;
            EXPECT_LT(isStroke(x, 420) ? 0 : channelOf(picture, x, 420, 8), 26) << x;
        }
        int rows = 0;
        for (int y = 195; y < 650; ++y) {
            rows += isStroke(780, y) ? 1 : 0;
            EXPECT_LT(isStroke(780, y) ? 0 : channelOf(picture, 780, y, 8), 26) << y;
        }
        EXPECT_EQ(columns, 2) << offset;
        EXPECT_EQ(rows, 2) << offset;
    }
}

double luminance(QRgb colour) {
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

// As WCAG 2 defines it.
double contrast(QRgb one, QRgb other) {
    return (std::max(luminance(one), luminance(other)) + 0.05) /
           (std::min(luminance(one), luminance(other)) + 0.05);
}

TEST(Backdrop, separatesTheFrameFromBothSidesInHighContrast) {
    Painting::Backdrop backdrop;
    backdrop.fit(window, 1, frame, Painting::Backdrop::strokeOpacityInHighContrast);

    const QImage picture = backdrop.image(backdrop.bounds());

    EXPECT_GE(contrast(picture.pixel(500, 420), picture.pixel(490, 420)), 3);
    EXPECT_GE(contrast(picture.pixel(500, 420), picture.pixel(510, 420)), 3);
    EXPECT_GE(contrast(picture.pixel(780, 200), picture.pixel(780, 190)), 3);
}

TEST(Backdrop, keepsTheFrameWithinAPixelOfItsPlace) {
    const QImage picture = groundOf(window, 1, frame);

    // Outer edge of the stroke: 500 to 501 and 199.5 to 200.5.
    EXPECT_NEAR(channelOf(picture, 500, 420, 8), (24 + 12.5) / 2 * 0.84 + 240 * 0.16, 3);
    EXPECT_NEAR(channelOf(picture, 780, 200, 8), (24 + 12.5) / 2 * 0.84 + 240 * 0.16, 3);
}

TEST(Backdrop, roundsTheFramesCornersWithARadiusOf22Points) {
    const QImage picture = groundOf(window, 1, frame);
    const auto onDiagonal = [&](int step) { return picture.pixel(501 + step, 200 + step); };

    int brightest = 0;
    for (int step = 0; step < 20; ++step) {
        if (qGreen(onDiagonal(step)) > qGreen(onDiagonal(brightest))) {
            brightest = step;
        }
    }
    // A corner of radius 22 crosses the diagonal 6.4 points from either edge.
    EXPECT_GE(brightest, 5);
    EXPECT_LE(brightest, 6);
    EXPECT_EQ(onDiagonal(9), qRgb(14, 24, 19));
    EXPECT_LE(qGreen(onDiagonal(3)), 22);
}

TEST(Backdrop, paintsTheFramesShadow15PointsBelowTheFrame) {
    const QImage picture = groundOf(window, 1, frame);
    const QImage bare = groundOf(window, 1, {});
    const auto shade = [&](int x, int y) {
        return 1 - meanAround(picture, x, y, 8) / meanAround(bare, x, y, 8);
    };

    // Below the lower edge the shadow is a blurred half-plane that ends 15 points lower.
    for (const int below : {10, 15, 40, 60}) {
        const double expected = 0.25 * 0.5 * std::erfc((below - 15) / (25 * std::sqrt(2.0)));
        EXPECT_NEAR(shade(780, 640 + below), expected, 0.02) << below;
    }
    EXPECT_NEAR(shade(780, 200 - 20), 0.25 * 0.5 * std::erfc(35 / (25 * std::sqrt(2.0))), 0.02);
    EXPECT_NEAR(shade(780, 640 + 110), 0, 0.01);
    EXPECT_NEAR(shade(500 - 25, 430), 0.25 * 0.5 * std::erfc(1 / std::sqrt(2.0)), 0.02);
}

TEST(Backdrop, hasANewRevisionOnlyWhenWindowFrameOrStrokeChange) {
    Painting::Backdrop backdrop;
    backdrop.fit(window, 1, frame);
    const int first = backdrop.revision();

    backdrop.fit(window, 1, frame);
    EXPECT_EQ(backdrop.revision(), first);
    backdrop.fit(window, 1, frame.translated(1, 0));
    const int moved = backdrop.revision();
    EXPECT_NE(moved, first);
    backdrop.fit({800, 600}, 1, frame.translated(1, 0));
    const int resized = backdrop.revision();
    EXPECT_NE(resized, moved);
    backdrop.fit({800, 600}, 1, frame.translated(1, 0),
                 Painting::Backdrop::strokeOpacityInHighContrast);
    EXPECT_NE(backdrop.revision(), resized);
    EXPECT_EQ(backdrop.bounds(), QRect(0, 0, 800, 600));
}

TEST(Backdrop, isTheSameWhenPaintedInPieces) {
    Painting::Backdrop backdrop;
    backdrop.fit(window, 1, frame);
    QImage inPieces(window, QImage::Format_RGB32);
    QPainter painter(&inPieces);
    for (int y = 0; y < window.height(); y += 93) {
        for (int x = 0; x < window.width(); x += 131) {
            backdrop.paint(painter, QRect(x, y, 131, 93) & backdrop.bounds());
        }
    }
    painter.end();

    EXPECT_EQ(inPieces, backdrop.image(backdrop.bounds()));
}

TEST(Backdrop, isTheSameWhenThePaintEventIsClipped) {
    Painting::Backdrop backdrop;
    backdrop.fit(window, 1, frame);
    const QRect clip(470, 610, 300, 120);
    QImage clipped(window, QImage::Format_RGB32);
    QPainter painter(&clipped);
    painter.paintEngine()->setSystemClip(clip);
    backdrop.paint(painter, backdrop.bounds());
    painter.end();

    EXPECT_EQ(clipped.copy(clip), backdrop.image(backdrop.bounds()).copy(clip));
}

}  // namespace
