#include "Garden/Look/RoundedShape.hpp"

#include <QPointF>
#include <algorithm>
#include <array>

namespace Garden {

namespace {

// Lengths are in corner radii, measured from the corner of the rectangle. Half a corner is one
// cubic Bézier curve from an edge to the diagonal: x runs along the edge, y away from it. If both
// control points lie on the edge, the curvature starts at zero.
struct HalfCorner {
    double start;
    QPointF nearEdge;
    QPointF nearDiagonal;
};
struct Corner {
    double diagonal;
    HalfCorner alongX;
    HalfCorner alongY;
};

// An eighth of a circle, which crosses the diagonal at 1 - sqrt(1/2).
constexpr double circleDiagonal = 0.29289;
constexpr HalfCorner circular{1, {0.7348, 0}, {0.4804, 0.1054}};
// The same with the curvature growing from zero where the straight edge ends.
constexpr HalfCorner eased{1.528, {0.993, 0}, {2 * circleDiagonal, 0}};

// `eased`, or, where half the edge is too short for it, interpolated towards `circular`.
HalfCorner easedWithin(double halfEdge) {
    const double start = std::clamp(halfEdge, circular.start, eased.start);
    const double share = (start - circular.start) / (eased.start - circular.start);
    return {start, circular.nearEdge + share * (eased.nearEdge - circular.nearEdge),
            circular.nearDiagonal + share * (eased.nearDiagonal - circular.nearDiagonal)};
}

// `rect` with `corner` at all four corners, clockwise from the top left.
QPainterPath withCorners(const QRectF& rect, double radius, const Corner& corner) {
    QPainterPath path;
    const auto add = [&](const QPointF& point, double signX, double signY, bool fromVerticalEdge) {
        const auto x = [&](const QPointF& offset) {
            return point + radius * QPointF(signX * offset.x(), signY * offset.y());
        };
        const auto y = [&](const QPointF& offset) { return x(offset.transposed()); };
        const auto& [diagonal, alongX, alongY] = corner;
        std::array<QPointF, 7> points{y({alongY.start, 0}),   y(alongY.nearEdge),
                                      y(alongY.nearDiagonal), x({diagonal, diagonal}),
                                      x(alongX.nearDiagonal), x(alongX.nearEdge),
                                      x({alongX.start, 0})};
        if (!fromVerticalEdge) {
            std::ranges::reverse(points);
        }
        path.isEmpty() ? path.moveTo(points[0]) : path.lineTo(points[0]);
        path.cubicTo(points[1], points[2], points[3]);
        path.cubicTo(points[4], points[5], points[6]);
    };
    add(rect.topLeft(), 1, 1, true);
    add(rect.topRight(), -1, 1, false);
    add(rect.bottomRight(), -1, -1, true);
    add(rect.bottomLeft(), 1, -1, false);
    path.closeSubpath();
    return path;
}

}  // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius) {
    const double limited = std::min(radius, std::min(rect.width(), rect.height()) / 2);
    if (limited <= 0) {
        QPainterPath path;
        path.addRect(rect);
        return path;
    }
    return withCorners(rect, limited,
                       {circleDiagonal, easedWithin(rect.width() / 2 / limited),
                        easedWithin(rect.height() / 2 / limited)});
}

QPainterPath continuousCapsule(const QRectF& rect) {
    const double radius = std::min(rect.width(), rect.height()) / 2;
    return radius > 0 ? continuousRoundedRect(rect, radius) : QPainterPath();
}

}  // namespace Garden
