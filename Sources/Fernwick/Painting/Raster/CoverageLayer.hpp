#pragma once

#include <QPointF>
#include <QRect>
#include <cmath>

#include "Painting/Raster/Pixels.hpp"
#include "Painting/Raster/Plane.hpp"

namespace Painting {

/// The antialiased coverage, from 0 to 1, of a pixel by everything within `halfWidth` of a line or
/// point, given the squared distance of the pixel's centre from it. Exact for a straight line along
/// the pixel grid. Lengths are in pixels.
[[nodiscard]] inline double coverageWithin(double halfWidth, double squaredDistance) {
    const double inner = halfWidth - 0.5;
    const double outer = halfWidth + 0.5;
    // Few pixels lie on an edge, and only those need the square root.
    if (squaredDistance >= outer * outer) {
        return 0;
    }
    return inner > 0 && squaredDistance <= inner * inner
               ? 1
               : std::min(outer - std::sqrt(squaredDistance), 1.0);
}

/// The pixels that a disc touches.
[[nodiscard]] QRect discBounds(const QPointF& centre, double radius);

/// An antialiased shape in one colour: the coverage of each pixel of a small rectangle. It is
/// computed once and painted often.
class CoverageLayer {
public:
    CoverageLayer() = default;

    /// `coverage(x, y)`, from 0 to 1, is called for every pixel of `bounds`.
    template <typename Function>
    CoverageLayer(const QColor& colour, const QRect& bounds, Function coverage)
        : colour_(Rgb::of(colour)), bounds_(bounds), values_(bounds.width(), bounds.height()) {
        for (int y = bounds.top(); y <= bounds.bottom(); ++y) {
            float* value = values_.row(y - bounds.top());
            for (int x = bounds.left(); x <= bounds.right(); ++x) {
                *value++ = static_cast<float>(coverage(x, y));
            }
        }
    }

    /// A disc of one opacity, from 0 to 1. Exact to about a thousandth.
    [[nodiscard]] static CoverageLayer disc(const QColor& colour, const QPointF& centre,
                                            double radius, double opacity);

    [[nodiscard]] const QRect& bounds() const { return bounds_; }

    /// Paints the part of the layer that lies inside `area` of `picture`.
    void paint(QImage& picture, const QRect& area) const {
        const QRect part = bounds_ & area;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            paint(scanline(picture, part, y));
        }
    }
    /// Paints the part of the layer that lies on `line`.
    void paint(const Scanline& line) const {
        const Scanline part = line.clipped(bounds_);
        if (part.count > 0) {
            const float* const values =
                values_.row(part.y - bounds_.top()) + (part.x - bounds_.left());
            blendColour(part, colour_, [values](int i) { return values[i]; });
        }
    }

private:
    Rgb colour_;
    QRect bounds_;
    Plane<float> values_;
};

}  // namespace Painting
