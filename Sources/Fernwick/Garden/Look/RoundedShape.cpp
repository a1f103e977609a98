#include "Garden/Look/RoundedShape.hpp"

#include <QPointF>
#include <algorithm>

namespace Garden {

namespace {

// All lengths below are in corner radii, measured from the corner's point. Half a corner is one
// cubic from its edge to the diagonal, given here along the edge (x) and off it (y). Two control
// points on the edge itself make the curvature grow from zero there: no visible seam.
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

// A superellipse of exponent 2.5: it crosses the diagonal at 1 - 2^(-1/2.5), parallel to the other
// diagonal, and the last number is fitted to a point half way.
constexpr double superellipseDiagonal = 0.2421;
constexpr HalfCorner superellipse{1, {0.828, 0}, {2 * superellipseDiagonal, 0}};

// Half a quarter circle; its diagonal lies at 1 - sqrt(1/2).
constexpr double circleDiagonal = 0.29289;
constexpr HalfCorner circular{1, {0.7348, 0}, {0.4804, 0.1054}};
// The same quarter circle, eased into a long edge.
constexpr HalfCorner eased{1.528, {0.993, 0}, {2 * circleDiagonal, 0}};

// An edge too short for the eased corner gets one that much nearer to the circle.
HalfCorner easedWithin(double halfEdge) {
    const double start = std::clamp(halfEdge, circular.start, eased.start);
    const double share = (start - circular.start) / (eased.start - circular.start);
    return {start, circular.nearEdge + share * (eased.nearEdge - circular.nearEdge),
            circular.nearDiagonal + share * (eased.nearDiagonal - circular.nearDiagonal)};
}

QPainterPath withCorners(const QRectF& rect, double radius, const Corner& corner) {
    QPainterPath path;
    // From the end on the vertical edge, over the diagonal, to the end on the horizontal one; or
    // the other way about, so that the whole runs clockwise.
    const auto add = [&](const QPointF& point, double towardsX, double towardsY, bool fromY) {
        const auto place = [&](const QPointF& offset) {
            return point + radius * QPointF(towardsX * offset.x(), towardsY * offset.y());
        };
        const auto x = [&](const QPointF& control) { return place(control); };
        const auto y = [&](const QPointF& control) { return place(control.transposed()); };
        const QPointF middle = place({corner.diagonal, corner.diagonal});
        const HalfCorner& alongX = corner.alongX;
        const HalfCorner& alongY = corner.alongY;
        const QPointF first = fromY ? y({alongY.start, 0}) : x({alongX.start, 0});
        path.isEmpty() ? path.moveTo(first) : path.lineTo(first);
        if (fromY) {
            path.cubicTo(y(alongY.nearEdge), y(alongY.nearDiagonal), middle);
            path.cubicTo(x(alongX.nearDiagonal), x(alongX.nearEdge), x({alongX.start, 0}));
        } else {
            path.cubicTo(x(alongX.nearEdge), x(alongX.nearDiagonal), middle);
            path.cubicTo(y(alongY.nearDiagonal), y(alongY.nearEdge), y({alongY.start, 0}));
        }
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
    return withCorners(rect, limited, {superellipseDiagonal, superellipse, superellipse});
}

QPainterPath continuousCapsule(const QRectF& rect) {
    const double radius = std::min(rect.width(), rect.height()) / 2;
    if (radius <= 0) {
        return {};
    }
    return withCorners(rect, radius,
                       {circleDiagonal, easedWithin(rect.width() / 2 / radius),
                        easedWithin(rect.height() / 2 / radius)});
}

}  // namespace Garden
