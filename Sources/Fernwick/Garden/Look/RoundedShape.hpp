#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Garden {

/// `rect` with corners that cross the diagonal where a circle of `radius` would and whose curvature
/// grows from zero where the straight edge ends, up to 1.53 radii from the corner. `radius` is at
/// most half the shorter side; where there is no room, the corner is closer to a circle.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// The same with half the shorter side as its radius: round ends.
[[nodiscard]] QPainterPath continuousCapsule(const QRectF& rect);

/// `rect` with each edge moved inwards by `distance`.
[[nodiscard]] inline QRectF inset(const QRectF& rect, double distance) {
    return rect.adjusted(distance, distance, -distance, -distance);
}

}  // namespace Garden
