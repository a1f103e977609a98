#pragma once

#include <QFont>

/// The three typefaces, embedded in the program so that it looks the same on every desktop.
/// Characters that they lack come from similar system fonts. Sizes are in points, rounded to
/// integers.
namespace Garden {

/// Inter, in Normal, Medium or DemiBold; other weights use the nearest of these. `tracking` is the
/// letter spacing in points.
[[nodiscard]] QFont sans(double size, QFont::Weight weight, double tracking = 0);

/// Elstob, in ExtraLight or Normal.
[[nodiscard]] QFont serif(double size, QFont::Weight weight);

/// JetBrains Mono, in Light or Normal.
[[nodiscard]] QFont mono(double size, QFont::Weight weight);

/// `font` adapted to the scripts in `text`: no letter spacing for cursive scripts, and a minimum
/// size for scripts with complex glyphs.
[[nodiscard]] QFont fittedTo(const QString& text, const QFont& font);

}  // namespace Garden
