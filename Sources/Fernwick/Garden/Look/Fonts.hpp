#pragma once

#include <QFont>

/// The three faces of the garden, carried inside the program so that it looks alike on every
/// desktop; letters they lack come from the desktop's own fonts, of a like design. Sizes are
/// logical pixels, rounded to whole ones.
namespace Garden {

/// Inter in the cuts Normal, Medium and DemiBold; any other weight is drawn with the nearest.
/// `tracking` is the extra space after each letter, in logical pixels.
[[nodiscard]] QFont sans(double size, QFont::Weight weight, double tracking = 0);

/// Elstob, Light or Normal.
[[nodiscard]] QFont serif(double size, QFont::Weight weight);

/// JetBrains Mono, Light or Normal.
[[nodiscard]] QFont mono(double size, QFont::Weight weight);

/// `font` as the script of `text` can bear it: letters that join each other get no extra space
/// between them, and letters of many strokes are not set too small to be read.
[[nodiscard]] QFont fittedTo(const QString& text, const QFont& font);

}  // namespace Garden
