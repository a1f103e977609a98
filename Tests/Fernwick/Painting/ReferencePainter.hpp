#pragma once

#include <QImage>

#include "Painting/Board/PixelGrid.hpp"
#include "SnakeCore/Game.hpp"

/// A slow, straightforward implementation of the board's look: paints every frame completely, with
/// QPainter and full-size blurs. Shares no code with the game's own painting.
namespace ReferencePainter {

/// `game` over the board's plain fill.
[[nodiscard]] QImage paint(const SnakeCore::Game& game, const Painting::PixelGrid& grid);

/// The same while the snake does not move: blurred, at opacity 0.4 over the plain fill.
[[nodiscard]] QImage paintIdle(const SnakeCore::Game& game, const Painting::PixelGrid& grid);

}  // namespace ReferencePainter
