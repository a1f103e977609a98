#pragma once

#include <QFlags>
#include <cstdint>

#include "Painting/Raster/Plane.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// A side of a cell through which the snake continues into the next cell.
enum class Link : std::uint8_t { up = 1, down = 2, left = 4, right = 8 };

/// The links of one cell. They determine the shape of the snake inside the cell; a cell without
/// links is not part of the snake.
Q_DECLARE_FLAGS(Links, Link)
Q_DECLARE_OPERATORS_FOR_FLAGS(Links)

/// The number of different values of `Links`.
inline constexpr std::size_t linksCount = 16;

/// The links of every cell of the game's grid.
[[nodiscard]] Plane<Links> snakeLinks(const SnakeCore::Game& game);

}  // namespace Painting
