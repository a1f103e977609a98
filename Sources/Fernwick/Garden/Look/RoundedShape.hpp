#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Garden {

/// A rectangle whose corners are superellipses: their curvature grows from nothing where the edge
/// ends, so no seam shows. A corner takes `radius` of each edge, at most half the shorter side.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// A rectangle with round ends, eased in the same way into its two long edges.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rect);

}  // namespace Garden
