#include "Painting/Board/Fruit.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/FruitGlow.hpp"
#include "Painting/Raster/Coverage.hpp"

namespace {

constexpr QColor fruitColour = Garden::srgb(1.0, 0.52, 0.39);
constexpr QColor glowColour = Garden::srgb(1.0, 0.62, 0.04);
constexpr double glowOpacity = 0.55;
/// In points, at any size of the board.
constexpr double stemWidth = 2;
// The stem's curve from its foot over its control point to its tip, in cells from the centre.
constexpr QPointF stemFoot(0, -0.3);
constexpr QPointF stemBend(0, -0.55);
constexpr QPointF stemTip(0.22, -0.48);

constexpr std::size_t stemSegments = 16;
using StemLine = std::array<QPointF, stemSegments + 1>;

constexpr QPointF pixelCentre(int x, int y) {
    return {x + 0.5, y + 0.5};
}

double squaredLength(const QPointF& vector) {
    return QPointF::dotProduct(vector, vector);
}

double squaredDistance(const QPointF& point, const QPointF& begin, const QPointF& end) {
    const QPointF way = end - begin;
    const double along = QPointF::dotProduct(point - begin, way) / squaredLength(way);
    return squaredLength(point - begin - std::clamp(along, 0.0, 1.0) * way);
}

StemLine stemLine(const QPointF& centre, double cell) {
    StemLine line;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const double t = static_cast<double>(i) / stemSegments;
        const QPointF point =
            (1 - t) * (1 - t) * stemFoot + 2 * t * (1 - t) * stemBend + t * t * stemTip;
        line[i] = centre + point * cell;
    }
    return line;
}

double squaredDistance(const QPointF& point, const StemLine& line) {
    double nearest = std::numeric_limits<double>::max();
    for (std::size_t i = 1; i < line.size(); ++i) {
        nearest = std::min(nearest, squaredDistance(point, line[i - 1], line[i]));
    }
    return nearest;
}

CoverageLayer makeGlow(const PixelGrid& grid, const QPointF& centre) {
    return {Coverage::discBounds(centre, FruitGlow::radius * grid.cell), [&](int x, int y) {
                return FruitGlow::strength(std::sqrt(squaredLength(pixelCentre(x, y) - centre)) /
                                           grid.cell) *
                       glowOpacity;
            }};
}

CoverageLayer makeBall(const PixelGrid& grid, const QPointF& centre) {
    const double radius = FruitGlow::ballRadius * grid.cell;
    return {Coverage::discBounds(centre, radius), [&](int x, int y) {
                return Coverage::ofSquared(squaredLength(pixelCentre(x, y) - centre), radius);
            }};
}

CoverageLayer makeStem(const PixelGrid& grid, const QPointF& centre) {
    const StemLine line = stemLine(centre, grid.cell);
    const double halfWidth = stemWidth / 2 * grid.scale;
    // The curve stays inside the triangle of its three points.
    const QPointF around(halfWidth, halfWidth);
    const QRectF hull(centre + QPointF(stemFoot.x(), stemBend.y()) * grid.cell - around,
                      centre + QPointF(stemTip.x(), stemFoot.y()) * grid.cell + around);
    return {hull.toAlignedRect(), [&](int x, int y) {
                return Coverage::ofSquared(squaredDistance(pixelCentre(x, y), line), halfWidth);
            }};
}

}  // namespace

Fruit::Fruit(const PixelGrid& grid, const SnakeCore::Cell& place)
    : glow_(makeGlow(grid, grid.centre(place))),
      ball_(makeBall(grid, grid.centre(place))),
      stem_(makeStem(grid, grid.centre(place))) {}

void Fruit::paint(QImage& picture, const QRect& area) const {
    glow_.paint(picture, area, Rgb::of(glowColour));
    ball_.paint(picture, area, Rgb::of(fruitColour));
    stem_.paint(picture, area, Rgb::of(Garden::mint));
}
