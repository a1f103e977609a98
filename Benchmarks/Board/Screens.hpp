#pragma once

#include "Painting/Board/BoardGeometry.hpp"
#include "Painting/Board/PixelGrid.hpp"

/// Boards of the size that they have in full screen.
namespace Screens {

/// The space for the board on a screen of 1920 x 1080 points.
inline constexpr QRectF space(0, 0, 1844, 810);
inline constexpr QSize cells(28, 22);

/// At scale 1 for a screen of 1920 x 1080 pixels, at scale 2 for 3840 x 2160.
[[nodiscard]] inline Painting::PixelGrid grid(double scale) {
    const Painting::BoardGeometry geometry = Painting::fitBoard(space, cells);
    const QRectF frame(geometry.frame.topLeft() * scale, geometry.frame.size() * scale);
    const QRect pixels = frame.toAlignedRect();
    return {pixels.size(),         frame.topLeft() - pixels.topLeft(),
            geometry.cell * scale, scale,
            cells.width(),         cells.height()};
}

}  // namespace Screens
