#pragma once

#include "Painting/Board/BoardGeometry.hpp"
#include "Painting/Board/PixelGrid.hpp"

/// The boards of a full-screen game.
namespace Screens {

/// The points that the main screen leaves to the board on a screen of 1920 x 1080 points.
inline constexpr QRectF space(0, 0, 1844, 810);

/// At a scale of 1 a screen of 1920 x 1080 pixels, at 2 one of 3840 x 2160.
[[nodiscard]] inline PixelGrid grid(double scale) {
    const BoardGeometry geometry = fitBoard(space);
    const QRectF frame(geometry.frame.topLeft() * scale, geometry.frame.size() * scale);
    const QRect pixels = frame.toAlignedRect();
    return {pixels.size(),          frame.topLeft() - pixels.topLeft(),
            geometry.cell * scale,  scale,
            BoardGeometry::columns, BoardGeometry::rows};
}

}  // namespace Screens
