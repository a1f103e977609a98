#include "Garden/RoundedShape.hpp"

#include <QPointF>
#include <algorithm>
#include <array>
#include <cmath>

namespace Garden {

namespace {

// All lengths below are in corner radii, from the corner's point, along an edge (x) and off it (y).
// Where a circular arc crosses the corner's diagonal: 1 - sqrt(1/2).
constexpr double diagonal = 0.29289321881345254;
// How far along the edge the smooth corner begins.
constexpr double reach = 1.528;

// Half a corner is one cubic from the edge to the diagonal; its two control points:
struct HalfCorner {
    QPointF nearEdge;
    QPointF nearDiagonal;
};
constexpr HalfCorner circular{{0.7348, 0}, {0.4804, 0.1054}};
// Three points on the edge itself give zero curvature where the straight line ends.
constexpr HalfCorner smooth{{0.993, 0}, {2 * diagonal, 0}};

struct EdgeCurve {
    double start;
    HalfCorner controls;
};

EdgeCurve curveAlong(double side, double radius) {
    const double start = std::min(reach * radius, side / 2) / radius;
    const double share = std::clamp((start - 1) / (reach - 1), 0.0, 1.0);
    return {start,
            {circular.nearEdge + share * (smooth.nearEdge - circular.nearEdge),
             circular.nearDiagonal + share * (smooth.nearDiagonal - circular.nearDiagonal)}};
}

}  // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius) {
    QPainterPath path;
    const double limited = std::min(radius, std::min(rect.width(), rect.height()) / 2);
    if (limited <= 0) {
        path.addRect(rect);
        return path;
    }
    const EdgeCurve horizontal = curveAlong(rect.width(), limited);
    const EdgeCurve vertical = curveAlong(rect.height(), limited);

    // Clockwise from the top left; each corner points into the rectangle along x and y.
    struct Corner {
        QPointF at;
        QPointF inward;
        bool arrivesVertically;
    };
    const std::array<Corner, 4> corners{{{rect.topLeft(), {1, 1}, true},
                                         {rect.topRight(), {-1, 1}, false},
                                         {rect.bottomRight(), {-1, -1}, true},
                                         {rect.bottomLeft(), {1, -1}, false}}};
    for (const Corner& corner : corners) {
        const auto place = [&](double x, double y) {
            return corner.at + QPointF(x * corner.inward.x(), y * corner.inward.y()) * limited;
        };
        const auto onHorizontal = [&](QPointF point) { return place(point.x(), point.y()); };
        const auto onVertical = [&](QPointF point) { return place(point.y(), point.x()); };
        const QPointF middle = place(diagonal, diagonal);
        const QPointF horizontalEnd = place(horizontal.start, 0);
        const QPointF verticalEnd = place(0, vertical.start);
        const QPointF first = corner.arrivesVertically ? verticalEnd : horizontalEnd;
        if (path.elementCount() == 0) {
            path.moveTo(first);
        } else {
            path.lineTo(first);
        }
        if (corner.arrivesVertically) {
            path.cubicTo(onVertical(vertical.controls.nearEdge),
                         onVertical(vertical.controls.nearDiagonal), middle);
            path.cubicTo(onHorizontal(horizontal.controls.nearDiagonal),
                         onHorizontal(horizontal.controls.nearEdge), horizontalEnd);
        } else {
            path.cubicTo(onHorizontal(horizontal.controls.nearEdge),
                         onHorizontal(horizontal.controls.nearDiagonal), middle);
            path.cubicTo(onVertical(vertical.controls.nearDiagonal),
                         onVertical(vertical.controls.nearEdge), verticalEnd);
        }
    }
    path.closeSubpath();
    return path;
}

QPainterPath continuousCapsule(const QRectF& rect) {
    return continuousRoundedRect(rect, std::min(rect.width(), rect.height()) / 2);
}

}  // namespace Garden
