#pragma once

#include <QPointF>
#include <QRect>
#include <algorithm>
#include <cmath>

/// How much of a pixel a small shape covers, from 0 to 1.
namespace Coverage {

/// The pixels that a disc touches.
[[nodiscard]] QRect discBounds(const QPointF& centre, double radius);

/// Of the pixel whose top left corner is (x, y), by a disc; exact to about a thousandth.
[[nodiscard]] double ofDisc(const QPointF& centre, double radius, int x, int y);

/// Of a pixel by all that lies within `halfWidth` of a line or point; `squared` is the squared
/// distance of the pixel's centre from it. Exact for a straight line along the pixels.
[[nodiscard]] inline double ofSquared(double squared, double halfWidth) {
    const double inner = halfWidth - 0.5;
    const double outer = halfWidth + 0.5;
    // Few pixels lie on an edge, and only they need the root.
    if (squared >= outer * outer) {
        return 0;
    }
    return inner > 0 && squared <= inner * inner ? 1 : std::min(outer - std::sqrt(squared), 1.0);
}

}  // namespace Coverage
