#pragma once

#include "Painting/Board/PixelGrid.hpp"

/// Places of boards on pixels.
namespace Grids {

/// The usual board with cells of `cell` points at `scale` pixels a point. Neither its corner nor
/// its cells fall on whole pixels.
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
