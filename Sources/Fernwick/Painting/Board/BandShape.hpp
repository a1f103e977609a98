#pragma once

#include <QPointF>
#include <algorithm>

#include "Painting/Board/SnakeLinks.hpp"

/// The shape of the snake's band inside one cell.
namespace BandShape {

/// Half the band's width, in cells: parallel runs keep a gap of 0.26 cells.
inline constexpr double halfWidth = 0.37;

/// How far `point` lies from the middle line of the band, squared. `point` is counted from the
/// cell's centre, inside the cell; `links` is not none.
[[nodiscard]] inline double squaredDistance(Links links, const QPointF& point) {
    const double x = point.x();
    const double y = point.y();
    const auto has = [&](Links way) { return (links & way) != 0; };
    // The arms reach the cell's edge, so that beside one only the distance across it counts.
    double nearest = x * x + y * y;
    if ((y < 0 && has(Link::up)) || (y > 0 && has(Link::down))) {
        nearest = x * x;
    }
    if ((x < 0 && has(Link::left)) || (x > 0 && has(Link::right))) {
        nearest = std::min(nearest, y * y);
    }
    return nearest;
}

}  // namespace BandShape
