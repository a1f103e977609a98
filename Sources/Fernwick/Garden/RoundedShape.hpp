#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Garden {

/// A rectangle whose corners run into the edges with continuous curvature, reaching about half as
/// far again along each edge as a circular corner of the same `radius` while passing through the
/// same point on the diagonal. Where an edge is too short for that, the corner falls back towards
/// the circle; the radius is at most half the shorter side.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// The same with the largest radius the rectangle allows.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rect);

}  // namespace Garden
