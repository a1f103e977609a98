#pragma once

#include <array>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "SnakeCore/Game.hpp"

/// The two eyes: a little ahead of the head's centre, side by side across the direction of the last
/// step. They lie inside the head's tile.
class Eyes {
public:
    Eyes(const PixelGrid& grid, const SnakeCore::Game& game);

    /// Paints what of them lies in one row of the picture: `count` pixels from (x, y) on.
    void paintRow(quint32* row, int x, int count, int y) const;

private:
    std::array<CoverageLayer, 2> eyes_;
};
