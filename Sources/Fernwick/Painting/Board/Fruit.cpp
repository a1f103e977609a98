#include "Painting/Board/Fruit.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Garden/Look/Palette.hpp"

namespace {

using Painting::CoverageLayer;
using Painting::PixelGrid;

constexpr QColor fruitColour = Garden::srgb(1.0, 0.52, 0.39);
constexpr QColor glowColour = Garden::srgb(1.0, 0.62, 0.04);
constexpr double glowOpacity = 0.55;
// In cells: the fruit's radius, the sigma of the glow and the radius at which it has faded.
constexpr double ballRadius = 0.28;
constexpr double glowSigma = 0.5;
constexpr double glowRadius = 2.25;
// In points, at any size of the board.
constexpr double stemWidth = 2;
// The stem is a quadratic Bézier curve. These are its points in cells, relative to the centre.
constexpr QPointF stemStart(0, -0.3);
constexpr QPointF stemControl(0, -0.55);
constexpr QPointF stemEnd(0.22, -0.48);

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

double squaredDistance(const QPointF& point, const StemLine& line) {
    double nearest = std::numeric_limits<double>::max();
    for (std::size_t i = 1; i < line.size(); ++i) {
        nearest = std::min(nearest, squaredDistance(point, line[i - 1], line[i]));
    }
    return nearest;
}

StemLine stemLine(const QPointF& centre, double cell) {
    StemLine line;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const double t = static_cast<double>(i) / stemSegments;
        const QPointF point =
            (1 - t) * (1 - t) * stemStart + 2 * t * (1 - t) * stemControl + t * t * stemEnd;
        line[i] = centre + point * cell;
    }
    return line;
}

// The fruit's disc convolved with a Gaussian, at `distance` cells from the centre: the sum over
// thin rings of the disc. A ring's share is a modified Bessel function of the distance.
double blurredDisc(double distance) {
    constexpr int rings = 64;
    constexpr double thickness = ballRadius / rings;
    constexpr double variance = glowSigma * glowSigma;
    double sum = 0;
    for (int i = 0; i < rings; ++i) {
        const double ring = (i + 0.5) * thickness;
        const double exponent = (distance * distance + ring * ring) / (2 * variance);
        const double bessel = std::cyl_bessel_i(0.0, distance * ring / variance);
        sum += std::exp(-exponent) * bessel * ring * thickness;
    }
    return sum / variance;
}

// blurredDisc() from a table. Its last entry is zero, so that the glow fades out completely.
float glowStrength(double distance) {
    constexpr int steps = 256;
    static const auto table = [] {
        std::array<float, steps + 1> values{};
        for (int i = 0; i < steps; ++i) {
            values[static_cast<std::size_t>(i)] =
                static_cast<float>(blurredDisc(glowRadius * i / steps));
        }
        return values;
    }();
    const double at = std::min(distance / glowRadius, 1.0) * steps;
    const int step = std::min(static_cast<int>(at), steps - 1);
    const float before = table[static_cast<std::size_t>(step)];
    const float after = table[static_cast<std::size_t>(step) + 1];
    return before + (after - before) * static_cast<float>(at - step);
}

CoverageLayer makeGlow(const PixelGrid& grid, const QPointF& centre) {
    return {glowColour, Painting::discBounds(centre, glowRadius * grid.cell), [&](int x, int y) {
                const double distance = std::sqrt(squaredLength(pixelCentre(x, y) - centre));
                return glowStrength(distance / grid.cell) * glowOpacity;
            }};
}

// Everything within `halfWidth` of a line or point, given the squared distance of a position.
template <typename SquaredDistance>
CoverageLayer makeLayer(const QColor& colour, const QRect& bounds, const PixelGrid& grid,
                        double halfWidth, SquaredDistance squaredDistanceOf) {
    // At a fraction of the size the fruit is only a few pixels wide, and coverageWithin() makes it
    // too large.
    const int perPixel = grid.scale < 1 ? 4 : 1;
    return {
        colour, bounds, [&, perPixel](int x, int y) {
            double sum = 0;
            for (int row = 0; row < perPixel; ++row) {
                for (int column = 0; column < perPixel; ++column) {
                    const QPointF inside(column + 0.5, row + 0.5);
                    sum += Painting::coverageWithin(
                        halfWidth * perPixel,
                        perPixel * perPixel * squaredDistanceOf(QPointF(x, y) + inside / perPixel));
                }
            }
            return sum / (perPixel * perPixel);
        }};
}

CoverageLayer makeBall(const PixelGrid& grid, const QPointF& centre) {
    const double radius = ballRadius * grid.cell;
    return makeLayer(fruitColour, Painting::discBounds(centre, radius), grid, radius,
                     [&](const QPointF& point) { return squaredLength(point - centre); });
}

CoverageLayer makeStem(const PixelGrid& grid, const QPointF& centre) {
    const StemLine line = stemLine(centre, grid.cell);
    const double halfWidth = stemWidth / 2 * grid.scale;
    // The curve stays inside the triangle of its three points.
    const QPointF around(halfWidth, halfWidth);
    const QRectF hull(centre + QPointF(stemStart.x(), stemControl.y()) * grid.cell - around,
                      centre + QPointF(stemEnd.x(), stemStart.y()) * grid.cell + around);
    return makeLayer(Garden::mint, hull.toAlignedRect(), grid, halfWidth,
                     [&](const QPointF& point) { return squaredDistance(point, line); });
}

}  // namespace

std::array<CoverageLayer, 3> Painting::makeFruit(const PixelGrid& grid,
                                                 const SnakeCore::Cell& place) {
    const QPointF centre = grid.centre(place);
    return {makeGlow(grid, centre), makeBall(grid, centre), makeStem(grid, centre)};
}
