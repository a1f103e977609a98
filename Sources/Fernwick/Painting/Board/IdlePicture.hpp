#pragma once

#include <QImage>

#include "Painting/Board/PixelGrid.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// The board's picture while the snake does not move: a Gaussian blur of 5 points, at opacity 0.4
/// over the board's plain fill. Outside its edges the picture is treated as plain fill. `game` is
/// as large as the grid. It needs no QGuiApplication and may be called in any thread.
[[nodiscard]] QImage idlePicture(const SnakeCore::Game& game, const PixelGrid& grid);

}  // namespace Painting
