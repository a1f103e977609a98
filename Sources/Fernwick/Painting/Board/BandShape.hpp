#pragma once

#include <QPointF>
#include <algorithm>
#include <cstdint>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"
#include "Painting/Raster/Plane.hpp"

/// The shape of the snake's body: a band along the centres of its cells, with round ends and turns.
namespace Painting::Band {

/// Half the band's width, in cells: parallel runs keep a gap of 0.26 cells.
inline constexpr double halfWidth = 0.37;

/// The squared distance of `point` from the centre line of the band in one cell. `point` is in that
/// cell, relative to its centre; `links` is not empty.
[[nodiscard]] inline double squaredDistance(Links links, const QPointF& point) {
    const double x = point.x();
    const double y = point.y();
    // The centre line runs from the cell's centre to each linked edge. Next to one of these arms
    // only the distance across it counts.
    double nearest = x * x + y * y;
    if ((y < 0 && links.testFlag(Link::up)) || (y > 0 && links.testFlag(Link::down))) {
        nearest = x * x;
    }
    if ((x < 0 && links.testFlag(Link::left)) || (x > 0 && links.testFlag(Link::right))) {
        nearest = std::min(nearest, y * y);
    }
    return nearest;
}

/// Rasterizes the band in one cell: overwrites the cell's tile in `mask`, which is as large as the
/// picture and holds the coverage of each pixel from 0 to 255.
void drawTile(Plane<std::uint8_t>& mask, const PixelGrid& grid, int column, int row, Links links);

}  // namespace Painting::Band
