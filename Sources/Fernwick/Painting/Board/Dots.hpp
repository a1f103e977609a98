#pragma once

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/CoverageLayer.hpp"
#include "Painting/Raster/Plane.hpp"

namespace Painting {

/// The faint dots in the centres of the cells, 1.6 points wide at any size of the board.
class Dots {
public:
    explicit Dots(const PixelGrid& grid);

    /// Paints the parts of the dots that lie on `line`.
    void paint(const Scanline& line) const;

private:
    PixelGrid grid_;
    // One per cell: each lies differently on the pixels.
    Plane<CoverageLayer> dots_;
};

}  // namespace Painting
