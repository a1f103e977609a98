#include "Painting/Raster/CoverageLayer.hpp"

namespace {

// The coverage of the pixel whose top left corner is (x, y): the mean of thin horizontal slices,
// each of which is taken for a rectangle.
double discCoverage(const QPointF& centre, double radius, int x, int y) {
    constexpr int slices = 16;
    double covered = 0;
    for (int slice = 0; slice < slices; ++slice) {
        const double height = y + (slice + 0.5) / slices - centre.y();
        const double square = radius * radius - height * height;
        if (square <= 0) {
            continue;
        }
        const double half = std::sqrt(square);
        const double begin = std::max(centre.x() - half, static_cast<double>(x));
        const double end = std::min(centre.x() + half, static_cast<double>(x) + 1);
        covered += std::max(end - begin, 0.0);
    }
    return covered / slices;
}

}  // namespace

QRect Painting::discBounds(const QPointF& centre, double radius) {
    const QPointF corner(radius, radius);
    return QRectF(centre - corner, centre + corner).toAlignedRect();
}

Painting::CoverageLayer Painting::CoverageLayer::disc(const QColor& colour, const QPointF& centre,
                                                      double radius, double opacity) {
    return {colour, discBounds(centre, radius),
            [&](int x, int y) { return discCoverage(centre, radius, x, y) * opacity; }};
}
