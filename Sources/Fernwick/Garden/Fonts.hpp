#pragma once

#include <QFont>

/// The three faces of the garden, carried inside the program so that it looks alike on every
/// desktop. Sizes are logical pixels, rounded to whole ones.
namespace Garden {

/// Inter in the cuts Normal, Medium and DemiBold; any other weight is drawn with the nearest.
/// `tracking` is the extra space after each letter, in logical pixels.
[[nodiscard]] QFont sans(double size, QFont::Weight weight, double tracking = 0);

/// Elstob, Light or Normal.
[[nodiscard]] QFont serif(double size, QFont::Weight weight);

/// JetBrains Mono, Light or Normal.
[[nodiscard]] QFont mono(double size, QFont::Weight weight);

}  // namespace Garden
