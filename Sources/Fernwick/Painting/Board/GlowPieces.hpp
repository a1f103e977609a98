#pragma once

#include <array>
#include <cstdint>

#include "Painting/Board/SnakeLinks.hpp"

/// The blurred pieces of the band that `GlowField` is made of.
namespace GlowPieces {

inline constexpr int samplesPerCell = 8;
/// Samples around a cell that its piece reaches to: over three sigma.
inline constexpr int margin = 12;
inline constexpr int side = samplesPerCell + 2 * margin;
/// The sample value that stands for a fully covered neighbourhood.
inline constexpr int full = 32768;

using Piece = std::array<std::uint16_t, std::size_t{side} * side>;

/// The piece of a cell with the given links, row by row from `margin` samples above and to the left
/// of the cell. Made when first asked for.
[[nodiscard]] const Piece& piece(Links links);

}  // namespace GlowPieces
