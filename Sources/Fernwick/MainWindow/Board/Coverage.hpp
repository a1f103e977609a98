#pragma once

#include <QPointF>
#include <QRect>

/// How much of a pixel a small shape covers, from 0 to 1.
namespace Coverage {

/// The pixels that a disc touches.
[[nodiscard]] QRect discBounds(const QPointF& centre, double radius);

/// Of the pixel whose top left corner is (x, y), by a disc; exact to about a thousandth.
[[nodiscard]] double ofDisc(const QPointF& centre, double radius, int x, int y);

/// Of a pixel whose centre lies `distance` outside (below zero: inside) of an edge that is straight
/// or nearly so.
[[nodiscard]] constexpr double ofEdge(double distance) {
    const double inside = 0.5 - distance;
    return inside <= 0 ? 0 : inside >= 1 ? 1 : inside;
}

}  // namespace Coverage
