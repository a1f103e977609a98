#pragma once

#include <array>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// The snake's eyes: a little ahead of the head's centre, side by side across the direction of the
/// last step. They lie inside the head's tile.
class Eyes {
public:
    Eyes(const PixelGrid& grid, const SnakeCore::Game& game);

    /// Paints the parts of the eyes that lie on `line`.
    void paint(const Scanline& line) const;

private:
    std::array<CoverageLayer, 2> eyes_;
};

}  // namespace Painting
