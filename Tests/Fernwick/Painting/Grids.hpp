#pragma once

#include "Painting/Board/PixelGrid.hpp"

/// Grids for the tests.
namespace Grids {

/// A grid of 28 x 22 cells of `cell` points each, at `scale` pixels per point. Its corner and most
/// of its cells lie on fractions of pixels.
[[nodiscard]] inline Painting::PixelGrid usual(double cell, double scale) {
    const QPointF corner(0.3, 0.7);
    const QSizeF size(28 * cell * scale + 1, 22 * cell * scale + 1);
    return {{static_cast<int>(size.width()) + 1, static_cast<int>(size.height()) + 1},
            corner,
            cell * scale,
            scale,
            28,
            22};
}

}  // namespace Grids
