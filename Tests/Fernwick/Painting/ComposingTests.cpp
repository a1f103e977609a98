#include <gtest/gtest.h>

#include <QPaintEngine>

#include "Painting/Raster/Composing.hpp"

namespace {

constexpr QRect area(3, 4, 20, 40);

// Every pixel tells its own coordinates.
void composeCoordinates(const Painting::Scanline& line) {
    for (int i = 0; i < line.count; ++i) {
        line.pixels[i] = qRgb(line.x + i, line.y, 7);
    }
}

QImage blank(QImage::Format format) {
    QImage image(60, 50, format);
    image.fill(Qt::black);
    return image;
}

template <typename Prepare>
bool isWrittenDirectly(QImage& image, Prepare prepare) {
    QPainter painter(&image);
    prepare(painter);
    return Painting::paintedMemory(painter, area).has_value();
}

TEST(Composing, writesThePixelsOfTheAreaWhereThePainterWouldDrawThem) {
    for (const QPoint& offset : {QPoint(0, 0), QPoint(11, -2), QPoint(50, 30)}) {
        QImage direct = blank(QImage::Format_ARGB32_Premultiplied);
        QImage drawn = direct;
        QPainter painter(&direct);
        painter.translate(offset);
        ASSERT_TRUE(Painting::paintedMemory(painter, area));
        Painting::drawComposed(painter, area, composeCoordinates);
        painter.end();

        QPainter(&drawn).drawImage(area.topLeft() + offset,
                                   Painting::composedImage(area, composeCoordinates));

        EXPECT_EQ(direct, drawn) << offset.x();
    }
}

// More than one thread composes as many pixels as these.
constexpr QRect largeArea(2, 1, 700, 601);

TEST(Composing, composesEachRowOfALargeAreaOnce) {
    const QImage large = Painting::composedImage(largeArea, composeCoordinates);

    for (int y = 0; y < large.height(); ++y) {
        const QImage row = Painting::composedImage(
            {largeArea.left(), largeArea.top() + y, largeArea.width(), 1}, composeCoordinates);
        ASSERT_EQ(large.copy(0, y, large.width(), 1), row) << y;
    }
}

TEST(Composing, givesAFunctionAdjacentRowsFromTopToBottomAlsoInALargeArea) {
    struct DistanceFromLastRow {
        void operator()(const Painting::Scanline& line) {
            line.fill(static_cast<quint32>(line.y - last));
            last = line.y;
        }
        int last = largeArea.top() - 1;
    };

    const QImage distances = Painting::composedImage(largeArea, DistanceFromLastRow());

    int jumps = 0;
    for (int y = 0; y < distances.height(); ++y) {
        const auto distance = static_cast<int>(distances.pixel(0, y) & 0xFFFFFFU);
        EXPECT_GE(distance, 1) << y;
        jumps += distance != 1 ? 1 : 0;
    }
    EXPECT_LE(jumps, 1);
}

TEST(Composing, drawsTheSameWithABufferWhereItCannotWriteDirectly) {
    QImage direct = blank(QImage::Format_RGB32);
    QImage buffered = direct;
    QPainter painter(&buffered);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    ASSERT_FALSE(Painting::paintedMemory(painter, area));
    Painting::drawComposed(painter, area, composeCoordinates);
    painter.end();

    QPainter directPainter(&direct);
    Painting::drawComposed(directPainter, area, composeCoordinates);
    directPainter.end();

    EXPECT_EQ(buffered, direct);
}

TEST(Composing, writesDirectlyOnlyWhereThatEqualsDrawing) {
    const auto unchanged = [](QPainter&) {};
    QImage image = blank(QImage::Format_RGB32);
    QImage sixteenBits = blank(QImage::Format_RGB16);

    EXPECT_TRUE(isWrittenDirectly(image, unchanged));
    EXPECT_TRUE(isWrittenDirectly(image, [](QPainter& painter) {
        painter.scale(1.5, 1.5);
        painter.scale(1 / 1.5, 1 / 1.5);
    }));
    EXPECT_FALSE(isWrittenDirectly(image, [](QPainter& painter) { painter.setOpacity(0.5); }));
    EXPECT_FALSE(isWrittenDirectly(image, [](QPainter& painter) { painter.scale(2, 2); }));
    EXPECT_FALSE(isWrittenDirectly(image, [](QPainter& painter) { painter.rotate(90); }));
    EXPECT_FALSE(isWrittenDirectly(image, [](QPainter& painter) { painter.translate(0.5, 0); }));
    EXPECT_FALSE(isWrittenDirectly(sixteenBits, unchanged));
}

TEST(Composing, writesOnlyInsideTheClipOfThePaintEvent) {
    QImage image = blank(QImage::Format_RGB32);
    QPainter painter(&image);
    painter.paintEngine()->setSystemClip(QRect(10, 0, 8, 20));

    Painting::drawComposed(painter, area, composeCoordinates);
    painter.end();

    EXPECT_EQ(image.pixel(10, 19), qRgb(10, 19, 7));
    for (const QPoint& outside : {QPoint(9, 19), QPoint(18, 19), QPoint(10, 20), QPoint(10, 3)}) {
        EXPECT_EQ(image.pixel(outside), qRgb(0, 0, 0)) << outside.x() << ", " << outside.y();
    }
}

}  // namespace
