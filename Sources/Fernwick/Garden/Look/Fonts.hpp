#pragma once

#include <QFont>

/// The three typefaces, embedded in the program so that it looks the same on every desktop.
/// Characters that they lack come from similar system fonts, see `provideSystemFonts`. Sizes are in
/// points, rounded to integers. For the main thread.
namespace Garden {

/// Inter, in Normal, Medium or DemiBold; other weights use the nearest of these. `tracking` is the
/// letter spacing in points.
[[nodiscard]] QFont sans(double size, QFont::Weight weight, double tracking = 0);

/// Elstob, in ExtraLight or Normal.
[[nodiscard]] QFont serif(double size, QFont::Weight weight);

/// JetBrains Mono, in Light or Normal.
[[nodiscard]] QFont mono(double size, QFont::Weight weight);

/// Lets Qt use the system fonts, for a text that may have letters in any script, such as the name
/// of a player; the first call takes some milliseconds. Call it before the text is given to a
/// widget. The texts of a language for which the embedded fonts lack letters do not need this.
void provideSystemFonts();

/// `font` adapted to the scripts in `text`: no letter spacing for cursive scripts, and a minimum
/// size for scripts with complex glyphs.
[[nodiscard]] QFont fittedTo(const QString& text, const QFont& font);

}  // namespace Garden
