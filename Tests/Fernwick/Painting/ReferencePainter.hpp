#pragma once

#include <QImage>

#include "Painting/Board/PixelGrid.hpp"
#include "SnakeCore/Game.hpp"

/// Paints boards the straightforward way, every step at full size with the toolkit's own painter:
/// slow, and written without a look at how the product does it.
namespace ReferencePainter {

/// `game` over the board's plain fill.
[[nodiscard]] QImage paint(const SnakeCore::Game& game, const Painting::PixelGrid& grid);

/// The same while no run is moving: the picture blurred and at opacity 0.4 over the plain fill.
[[nodiscard]] QImage paintIdle(const SnakeCore::Game& game, const Painting::PixelGrid& grid);

}  // namespace ReferencePainter
