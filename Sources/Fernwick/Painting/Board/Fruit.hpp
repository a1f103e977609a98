#pragma once

#include <array>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"

namespace Painting {

/// The fruit in one cell, bottom to top: its glow, the ball, which lies inside the glow, and the
/// stem.
[[nodiscard]] std::array<CoverageLayer, 3> makeFruit(const PixelGrid& grid,
                                                     const SnakeCore::Cell& place);

}  // namespace Painting
