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

/// The numbers of a look, as a designer lays them over a screen.
namespace Look {

inline constexpr const char* sans = "Inter";
inline constexpr const char* serif = "ElstobD";
inline constexpr const char* mono = "JetBrains Mono";

/// The type of a text; sizes and tracking in points.
struct Type {
    const char* family;
    int size;
    QFont::Weight weight;
    double tracking = 0;
};

/// Expects `widget` to be set in `type`, down to the cut that is really drawn.
inline void expectType(const QWidget& widget, const Type& type) {
    const QFont font = widget.font();
    const QRawFont drawn = QRawFont::fromFont(font);
    EXPECT_EQ(drawn.familyName().toStdString(), type.family);
    EXPECT_EQ(drawn.weight(), static_cast<int>(type.weight));
    EXPECT_EQ(font.pixelSize(), type.size);
    EXPECT_DOUBLE_EQ(font.letterSpacing(), type.tracking);
}

/// Whether `font`, with the faces that help it out, can draw every letter of `text`.
[[nodiscard]] inline bool hasEveryLetter(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return std::ranges::none_of(runs, [](const QGlyphRun& run) {
        // Glyph 0 is the box in place of a letter that a font does not have.
        return run.glyphIndexes().contains(0);
    });
}

/// `top` laid over the opaque `ground`.
[[nodiscard]] inline QColor over(const QColor& top, const QColor& ground) {
    const float opacity = top.alphaF();
    const auto mix = [opacity](float above, float below) {
        return above * opacity + below * (1 - opacity);
    };
    return QColor::fromRgbF(mix(top.redF(), ground.redF()), mix(top.greenF(), ground.greenF()),
                            mix(top.blueF(), ground.blueF()));
}

/// The largest difference of any component, in steps of 1/255.
[[nodiscard]] inline int distance(const QColor& one, const QColor& other) {
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

/// The pixel of `picture` that holds `point`, in points.
[[nodiscard]] inline QColor colourAt(const QImage& picture, const QPointF& point) {
    const QPointF pixel = point * picture.devicePixelRatio();
    return picture.pixelColor(static_cast<int>(std::floor(pixel.x())),
                              static_cast<int>(std::floor(pixel.y())));
}

/// The smallest distance of any pixel inside `place`, in points, from `colour`.
[[nodiscard]] inline int nearestTo(const QColor& colour, const QImage& picture,
                                   const QRectF& place) {
    const double scale = picture.devicePixelRatio();
    const QRect pixels =
        QRectF(place.topLeft() * scale, place.size() * scale).toRect() & picture.rect();
    int nearest = 255;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            nearest = std::min(nearest, distance(picture.pixelColor(x, y), colour));
        }
    }
    return nearest;
}

/// The first point past the right edge.
[[nodiscard]] inline int rightOf(const QRect& place) {
    return place.x() + place.width();
}

/// The first point past the bottom edge.
[[nodiscard]] inline int bottomOf(const QRect& place) {
    return place.y() + place.height();
}

inline void expectColour(const QColor& seen, const QColor& wanted, int tolerance) {
    EXPECT_LE(distance(seen, wanted), tolerance)
        << seen.name().toStdString() << " instead of " << wanted.name().toStdString();
}

}  // namespace Look

// Found by the test library, so that a failure tells the numbers.
inline void PrintTo(const QRect& rect, std::ostream* out) {
    *out << rect.x() << "," << rect.y() << " " << rect.width() << "x" << rect.height();
}

inline void PrintTo(const QSize& size, std::ostream* out) {
    *out << size.width() << "x" << size.height();
}
