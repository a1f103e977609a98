#pragma once

#include <QColor>

/// The colours every screen shares, in sRGB. A colour that one view alone uses stands in that view.
namespace Garden {

/// A colour from components between 0 and 1, kept at 16 bits each.
[[nodiscard]] constexpr QColor srgb(double red, double green, double blue, double opacity = 1) {
    constexpr auto component = [](double fraction) {
        constexpr double full = 0xffff;
        constexpr double half = 0.5;
        return static_cast<ushort>(fraction * full + half);
    };
    return QColor(QColor::Rgb, component(opacity), component(red), component(green),
                  component(blue));
}

/// The accent: fills, the current choice, numbers.
inline constexpr QColor mint = srgb(0.65, 0.94, 0.64);
/// Secondary text and quiet controls.
inline constexpr QColor muted = srgb(0.48, 0.59, 0.53);
/// The ground of the window and of the sheet.
inline constexpr QColor night = srgb(0.035, 0.065, 0.053);
/// The ground of the board.
inline constexpr QColor soil = srgb(0.055, 0.095, 0.076);
/// Text on a mint fill.
inline constexpr QColor ink = srgb(0.06, 0.15, 0.09);
/// Text that has no colour of its own: a softened white, easy on the eye at night.
inline constexpr QColor primaryText = srgb(1, 1, 1, 0.9);

/// `colour` with its opacity replaced, between 0 and 1. Takes a `Qt::GlobalColor` as well.
[[nodiscard]] inline QColor withOpacity(const QColor& colour, double opacity) {
    QColor result = colour;
    result.setAlphaF(static_cast<float>(opacity));
    return result;
}

}  // namespace Garden
