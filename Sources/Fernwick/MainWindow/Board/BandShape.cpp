#include "MainWindow/Board/BandShape.hpp"

#include <algorithm>

double BandShape::squaredDistance(Links links, const QPointF& point) {
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
