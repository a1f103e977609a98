#include "Painting/Raster/Coverage.hpp"

#include <algorithm>
#include <cmath>

QRect Coverage::discBounds(const QPointF& centre, double radius) {
    const QPointF corner(radius, radius);
    return QRectF(centre - corner, centre + corner).toAlignedRect();
}

double Coverage::ofDisc(const QPointF& centre, double radius, int x, int y) {
    // Thin slices of the disc are as good as rectangles, and a rectangle's overlap is exact.
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
