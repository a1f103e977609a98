#include "Painting/Board/GlowPieces.hpp"

#include <cmath>
#include <numeric>

#include "Painting/Board/BandShape.hpp"

namespace {

using GlowPieces::margin;
using GlowPieces::samplesPerCell;
using GlowPieces::side;

// The shadow's radius, in cells.
constexpr double sigma = 0.45;

using Kernel = std::array<double, 2 * margin + 1>;
using Sharp = std::array<std::array<double, samplesPerCell>, samplesPerCell>;

Kernel gaussian() {
    Kernel kernel{};
    for (int i = -margin; i <= margin; ++i) {
        const double distance = i / (sigma * samplesPerCell);
        kernel[static_cast<std::size_t>(i + margin)] = std::exp(-distance * distance / 2);
    }
    const double sum = std::accumulate(kernel.begin(), kernel.end(), 0.0);
    for (double& weight : kernel) {
        weight /= sum;
    }
    return kernel;
}

// The share of one sample's square that the band covers.
double covered(Links links, int column, int row) {
    constexpr int fine = 8;
    constexpr double edge = BandShape::halfWidth * BandShape::halfWidth;
    int inside = 0;
    for (int y = 0; y < fine; ++y) {
        for (int x = 0; x < fine; ++x) {
            const QPointF point(column + (x + 0.5) / fine, row + (y + 0.5) / fine);
            const QPointF fromCentre = point / samplesPerCell - QPointF(0.5, 0.5);
            inside += BandShape::squaredDistance(links, fromCentre) <= edge ? 1 : 0;
        }
    }
    return static_cast<double>(inside) / (fine * fine);
}

Sharp sharpPiece(Links links) {
    Sharp sharp{};
    for (int y = 0; y < samplesPerCell && links != Link::none; ++y) {
        for (int x = 0; x < samplesPerCell; ++x) {
            sharp[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = covered(links, x, y);
        }
    }
    return sharp;
}

double blurred(const Sharp& sharp, const Kernel& kernel, int column, int row) {
    const auto weight = [&](int from, int to) {
        const int index = to - from;
        return index < 0 || index > 2 * margin ? 0.0 : kernel[static_cast<std::size_t>(index)];
    };
    double sum = 0;
    for (int y = 0; y < samplesPerCell; ++y) {
        double line = 0;
        for (int x = 0; x < samplesPerCell; ++x) {
            line +=
                sharp[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] * weight(x, column);
        }
        sum += line * weight(y, row);
    }
    return sum;
}

std::array<GlowPieces::Piece, Link::count> allPieces() {
    const Kernel kernel = gaussian();
    std::array<GlowPieces::Piece, Link::count> pieces{};
    for (std::size_t links = 0; links < Link::count; ++links) {
        const Sharp sharp = sharpPiece(static_cast<Links>(links));
        for (int i = 0; i < side * side; ++i) {
            const double value = blurred(sharp, kernel, i % side, i / side);
            pieces[links][static_cast<std::size_t>(i)] =
                static_cast<std::uint16_t>(std::lround(value * GlowPieces::full));
        }
    }
    return pieces;
}

}  // namespace

const GlowPieces::Piece& GlowPieces::piece(Links links) {
    static const std::array<Piece, Link::count> pieces = allPieces();
    return pieces[links];
}
