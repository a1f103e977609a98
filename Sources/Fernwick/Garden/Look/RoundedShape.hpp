#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Garden {

/// `rect` with superellipse corners, whose curvature grows from zero where the straight edge ends.
/// Each corner takes up `radius` of both its edges, at most half the shorter side.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// `rect` with semicircular ends, whose curvature also grows from zero on the two long edges.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rect);

/// `rect` with each edge moved inwards by `distance`.
[[nodiscard]] inline QRectF inset(const QRectF& rect, double distance) {
    return rect.adjusted(distance, distance, -distance, -distance);
}

}  // namespace Garden
