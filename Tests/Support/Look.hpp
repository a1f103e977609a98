#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QPointF>
#include <QRawFont>
#include <QRect>
#include <QTextLayout>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <ostream>

/// Helpers for tests of fonts, colours and positions. Lengths are in points unless stated
/// otherwise.
namespace Look {

inline constexpr const char* sans = "Inter";
inline constexpr const char* serif = "ElstobD";
inline constexpr const char* mono = "JetBrains Mono";

/// The font of a text.
struct Type {
    const char* family;
    int size;
    QFont::Weight weight;
    double tracking = 0;
};

/// Expects `widget` to use `type`, both in its QFont and in the font file that Qt draws with.
inline void expectType(const QWidget& widget, const Type& type) {
    const QFont font = widget.font();
    const QRawFont drawn = QRawFont::fromFont(font);
    EXPECT_EQ(drawn.familyName().toStdString(), type.family);
    EXPECT_EQ(drawn.weight(), static_cast<int>(type.weight));
    EXPECT_EQ(font.pixelSize(), type.size);
    EXPECT_DOUBLE_EQ(font.letterSpacing(), type.tracking);
}

/// Whether `font` and its fallback fonts have glyphs for all of `text`.
[[nodiscard]] inline bool hasEveryLetter(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::ranges::none_of(runs, [](const QGlyphRun& run) {
        // Glyph 0 means a missing glyph.
        return run.glyphIndexes().contains(0);
    });
}

/// `top` blended over the opaque `ground`.
[[nodiscard]] inline QColor over(const QColor& top, const QColor& ground) {
    const float opacity = top.alphaF();
    const auto mix = [opacity](float above, float below) {
        return above * opacity + below * (1 - opacity);
    };
    return QColor::fromRgbF(mix(top.redF(), ground.redF()), mix(top.greenF(), ground.greenF()),
                            mix(top.blueF(), ground.blueF()));
}

/// The largest difference of the red, green and blue components, in steps of 1/255.
[[nodiscard]] inline int distance(const QColor& one, const QColor& other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

/// The colour of the pixel of `picture` at `point`.
[[nodiscard]] inline QColor colourAt(const QImage& picture, const QPointF& point) {
    const QPointF pixel = point * picture.devicePixelRatio();
    return picture.pixelColor(static_cast<int>(std::floor(pixel.x())),
                              static_cast<int>(std::floor(pixel.y())));
}

/// The smallest distance from `colour` of all pixels inside `area`.
[[nodiscard]] inline int nearestTo(const QColor& colour, const QImage& picture,
                                   const QRectF& area) {
    const double scale = picture.devicePixelRatio();
    const QRect pixels =
        QRectF(area.topLeft() * scale, area.size() * scale).toRect() & picture.rect();
    int nearest = 255;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            nearest = std::min(nearest, distance(picture.pixelColor(x, y), colour));
        }
    }
    return nearest;
}

/// The bounding rectangle of the pixels inside `area` that look like `colour`, in points: including
/// those of an antialiased edge that are at least half covered.
[[nodiscard]] inline QRectF inkOf(const QColor& colour, const QImage& picture, const QRectF& area) {
    constexpr int halfCovered = 110;
    const double scale = picture.devicePixelRatio();
    const QRect pixels =
        QRectF(area.topLeft() * scale, area.size() * scale).toRect() & picture.rect();
    QRect ink;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (distance(picture.pixelColor(x, y), colour) < halfCovered) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return {QPointF(ink.topLeft()) / scale, QSizeF(ink.size()) / scale};
}

/// The x coordinate just past the right edge, `QRect::right()` + 1.
[[nodiscard]] inline int rightOf(const QRect& rect) {
    return rect.x() + rect.width();
}

/// The y coordinate just past the bottom edge, `QRect::bottom()` + 1.
[[nodiscard]] inline int bottomOf(const QRect& rect) {
    return rect.y() + rect.height();
}

inline void expectColour(const QColor& seen, const QColor& wanted, int tolerance) {
    EXPECT_LE(distance(seen, wanted), tolerance)
        << seen.name().toStdString() << " instead of " << wanted.name().toStdString();
}

}  // namespace Look

// GoogleTest uses these to print values in failure messages.
inline void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.x() << "," << rect.y() << " " << rect.width() << "x" << rect.height();
}

inline void PrintTo(const QSize& size, std::ostream* out) {
    *out << size.width() << "x" << size.height();
}
