#include "MainWindow/Board/BandShape.hpp"

#include <algorithm>
#include <cmath>

double BandShape::distance(Links links, const QPointF& point, double armLength) {
    double nearest = std::hypot(point.x(), point.y());
    const auto arm = [&](Links way, double along, double across) {
        if ((links & way) != 0 && along > 0) {
            const double beyond = std::max(along - armLength, 0.0);
            nearest = std::min(nearest, std::hypot(beyond, across));
        }
    };
    arm(Link::up, -point.y(), point.x());
    arm(Link::down, point.y(), point.x());
    arm(Link::left, -point.x(), point.y());
    arm(Link::right, point.x(), point.y());
    return nearest;
}
