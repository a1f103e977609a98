#pragma once

#include <QColor>
#include <QString>

/// The colours that several screens share, in sRGB. A colour of a single view is defined there.
namespace Garden {

/// A colour from components between 0 and 1, stored with 16 bits each.
[[nodiscard]] constexpr QColor srgb(double red, double green, double blue, double opacity = 1) {
    constexpr auto component = [](double fraction) {
        constexpr double full = 0xffff;
        constexpr double half = 0.5;
        return static_cast<ushort>(fraction * full + half);
    };
    return QColor(QColor::Rgb, component(opacity), component(red), component(green),
                  component(blue));
}

/// The accent colour: fills, the current choice, numbers.
inline constexpr QColor mint = srgb(0.65, 0.94, 0.64);
/// Secondary text and controls.
inline constexpr QColor muted = srgb(0.48, 0.59, 0.53);
/// Background of the window and of the sheet.
inline constexpr QColor night = srgb(0.035, 0.065, 0.053);
/// Background of the board.
inline constexpr QColor soil = srgb(0.055, 0.095, 0.076);
/// Text on a mint fill.
inline constexpr QColor ink = srgb(0.06, 0.15, 0.09);
/// Default text colour, a softened white. `legible` turns it into full white with high contrast.
inline constexpr QColor primaryText = srgb(1, 1, 1, 0.85);

/// `colour` with this opacity, between 0 and 1.
[[nodiscard]] inline QColor withOpacity(const QColor& colour, double opacity) {
    QColor result = colour;
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

/// `colour` as a Qt style sheet value.
[[nodiscard]] inline QString css(const QColor& colour) {
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue())
        .arg(static_cast<double>(colour.alphaF()));
}

}  // namespace Garden
