#pragma once

/// The glow of the fruit along a ray from its centre: a disc blurred by a Gaussian is round.
namespace FruitGlow {

/// The fruit's radius, in cells.
inline constexpr double ballRadius = 0.28;
/// Where the glow has faded, in cells from the fruit's centre.
inline constexpr double radius = 2.25;

/// The blurred disc at `distance` cells from its centre, from 0 to 1.
[[nodiscard]] float strength(double distance);

}  // namespace FruitGlow
