#pragma once

#include <array>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// The snake's eyes: a little ahead of the head's centre, side by side across the direction of the
/// last step. They lie inside the head's tile.
[[nodiscard]] std::array<CoverageLayer, 2> makeEyes(const PixelGrid& grid,
                                                    const SnakeCore::Game& game);

}  // namespace Painting
