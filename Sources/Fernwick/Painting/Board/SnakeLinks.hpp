#pragma once

#include <cstdint>
#include <vector>

#include "SnakeCore/Game.hpp"

/// The ways a snake's band leaves one cell: a set of bits. It decides all there is to paint of the
/// band inside that cell.
using Links = std::uint8_t;

namespace Link {
inline constexpr Links none = 0;
inline constexpr Links up = 1;
inline constexpr Links down = 2;
inline constexpr Links left = 4;
inline constexpr Links right = 8;
/// The number of different sets.
inline constexpr std::size_t count = 16;
}  // namespace Link

/// The links of every cell of the game's board, row by row.
[[nodiscard]] std::vector<Links> snakeLinks(const SnakeCore::Game& game);
