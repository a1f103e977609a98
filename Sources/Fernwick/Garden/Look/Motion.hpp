#pragma once

namespace Garden {

/// How long a changed digit rolls, in milliseconds.
inline constexpr int digitRollDuration = 300;

/// How long a sheet takes to come or go, in milliseconds.
inline constexpr int sheetDuration = 180;

/// Whether the desktop asks programs to keep still. Follows the desktop while the program runs.
[[nodiscard]] bool reducedMotion();

}  // namespace Garden
