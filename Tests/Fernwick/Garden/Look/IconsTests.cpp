#include <gtest/gtest.h>

#include <QSet>
#include <algorithm>

#include "Garden/Look/Icons.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Support/Picture.hpp"

namespace {

constexpr int iconCount = static_cast<int>(Garden::Icon::windowClose) + 1;

QImage painted(Garden::Icon icon, int side, double scale, const QColor& colour) {
    QImage image(QSize(side, side) * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    QPainter painter(&image);
    Garden::paintIcon(painter, icon, QRectF(0, 0, side, side), colour);
    painter.end();
    return image;
}

}  // namespace

TEST(Icons, areAllVisibleAndDifferent) {
    QSet<QByteArray> seen;
    for (int index = 0; index < iconCount; ++index) {
        const QImage image = painted(static_cast<Garden::Icon>(index), 48, 1, Garden::mint);
        EXPECT_FALSE(inkOf(image).isEmpty()) << index;
        seen.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                               static_cast<qsizetype>(image.sizeInBytes())));
    }
    EXPECT_EQ(seen.size(), iconCount);
}

TEST(Icons, fitTheirGrid) {
    constexpr int side = 240;
    for (int index = 0; index < iconCount; ++index) {
        const QRect ink = inkOf(painted(static_cast<Garden::Icon>(index), side, 1, Qt::white));
        EXPECT_TRUE(QRect(1, 1, side - 2, side - 2).contains(ink)) << index;
    }
}

TEST(Icons, areTintedInOneFlatColourEvenWhenTranslucent) {
    const QColor faint = Garden::withOpacity(Garden::muted, 0.4);
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    Garden::paintIcon(painter, Garden::Icon::trophy, image.rect(), faint);
    painter.end();

    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            strongest = std::max(strongest, image.pixelColor(x, y).alpha());
        }
    }
    EXPECT_NEAR(strongest, faint.alpha(), 1);
}

TEST(Icons, areRenderedAtTheDevicePixelRatio) {
    const QImage coarse = painted(Garden::Icon::leaf, 30, 1, Garden::mint);
    const QImage fine = painted(Garden::Icon::leaf, 30, 2, Garden::mint);

    EXPECT_NE(fine, coarse.scaled(fine.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    EXPECT_GT(countOf(fine, Garden::mint), countOf(coarse, Garden::mint));
}

TEST(Icons, haveThinnerStrokesAtEmblemSize) {
    // Four times the area, yet fewer than four times the inked pixels.
    const int inButton = countOf(painted(Garden::Icon::trophy, 16, 8, Garden::mint), Garden::mint);
    const int asEmblem = countOf(painted(Garden::Icon::trophy, 32, 8, Garden::mint), Garden::mint);

    EXPECT_LT(asEmblem, 3.2 * inButton);
}

TEST(Icons, areAlignedToDevicePixels) {
    const QImage straight = painted(Garden::Icon::pause, 16, 1, Garden::mint);
    QImage shifted(16, 16, QImage::Format_ARGB32_Premultiplied);
    shifted.fill(Qt::black);
    QPainter painter(&shifted);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Garden::paintIcon(painter, Garden::Icon::pause, QRectF(0.3, -0.3, 16, 16), Garden::mint);
    painter.end();

    EXPECT_EQ(shifted, straight);
}

TEST(Icons, includeTheApplicationIconInEverySize) {
    const QIcon icon = Garden::applicationIcon();

    for (const int side : {16, 24, 32, 48, 64, 128, 256, 512}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
        EXPECT_GT(icon.pixmap(side).toImage().pixelColor(side / 2, side / 2).alpha(), 200) << side;
    }
}

TEST(IconView, showsItsIconAtItsSize) {
    Garden::IconView view(Garden::Icon::leaf, 30, Garden::mint);
    EXPECT_EQ(view.size(), QSize(30, 30));
    const QImage leaf = picture(view, 2);
    EXPECT_EQ(leaf, painted(Garden::Icon::leaf, 30, 2, Garden::mint));

    view.setIcon(Garden::Icon::moon);

    EXPECT_EQ(picture(view, 2), painted(Garden::Icon::moon, 30, 2, Garden::mint));
}
