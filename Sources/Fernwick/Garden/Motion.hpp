#pragma once

namespace Garden {

/// How long a changed digit rolls, in milliseconds.
inline constexpr int digitRollDuration = 300;

/// Whether the desktop asks programs to keep still. Follows the desktop while the program runs.
[[nodiscard]] bool reducedMotion();

}  // namespace Garden
