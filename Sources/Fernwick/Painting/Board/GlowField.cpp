#include "Painting/Board/GlowField.hpp"

#include <array>
#include <cmath>
#include <numeric>

#include "Garden/Look/Palette.hpp"
#include "Painting/Board/BandShape.hpp"
#include "Painting/Raster/PixelKernels.hpp"

namespace Painting {
namespace {

constexpr float glowOpacity = 0.35F;
/// Of the blur, in cells.
constexpr double sigma = 0.45;

constexpr int samplesPerCell = 8;
/// The samples around a cell that its kernel reaches. Beyond these 2.8 sigma the glow would change
/// a colour by less than 0.2 of 255.
constexpr int margin = 10;
constexpr int kernelSize = samplesPerCell + 2 * margin;
/// The sample value for full coverage.
constexpr int fullSample = 32768;

using Kernel = Plane<std::uint16_t>;

std::array<double, 2 * margin + 1> gaussian() {
    std::array<double, 2 * margin + 1> weights{};
    for (int i = -margin; i <= margin; ++i) {
        const double distance = i / (sigma * samplesPerCell);
        weights[static_cast<std::size_t>(i + margin)] = std::exp(-distance * distance / 2);
    }
    const double sum = std::accumulate(weights.begin(), weights.end(), 0.0);
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

// The share of the sample's square that the band covers.
double sampleCoverage(Links links, int column, int row) {
    constexpr int subsamples = 8;
    constexpr double edge = Band::halfWidth * Band::halfWidth;
    int inside = 0;
    for (int y = 0; y < subsamples; ++y) {
        for (int x = 0; x < subsamples; ++x) {
            const QPointF point(column + (x + 0.5) / subsamples, row + (y + 0.5) / subsamples);
            const QPointF fromCentre = point / samplesPerCell - QPointF(0.5, 0.5);
            inside += Band::squaredDistance(links, fromCentre) <= edge ? 1 : 0;
        }
    }
    return static_cast<double>(inside) / (subsamples * subsamples);
}

// The blurred band of a cell. Its first sample lies `margin` samples above and left of the cell.
Kernel makeKernel(Links links) {
    static const auto weights = gaussian();
    const auto weight = [](int from, int to) {
        const int index = to - from;
        return index < 0 || index > 2 * margin ? 0.0 : weights[static_cast<std::size_t>(index)];
    };
    Plane<double> band(samplesPerCell, samplesPerCell);
    for (int y = 0; y < samplesPerCell; ++y) {
        for (int x = 0; x < samplesPerCell; ++x) {
            band.at(x, y) = sampleCoverage(links, x, y);
        }
    }
    Plane<double> lines(kernelSize, samplesPerCell);
    for (int y = 0; y < samplesPerCell; ++y) {
        for (int column = 0; column < kernelSize; ++column) {
            for (int x = 0; x < samplesPerCell; ++x) {
                lines.at(column, y) += band.at(x, y) * weight(x, column);
            }
        }
    }
    Kernel kernel(kernelSize, kernelSize);
    for (int row = 0; row < kernelSize; ++row) {
        for (int column = 0; column < kernelSize; ++column) {
            double sum = 0;
            for (int y = 0; y < samplesPerCell; ++y) {
                sum += lines.at(column, y) * weight(y, row);
            }
            kernel.at(column, row) = static_cast<std::uint16_t>(std::lround(sum * fullSample));
        }
    }
    return kernel;
}

const Kernel& kernelOf(Links links) {
    static const auto kernels = [] {
        std::array<Kernel, linksCount> all;
        for (std::size_t i = 1; i < all.size(); ++i) {
            all[i] = makeKernel(Links::fromInt(static_cast<Links::Int>(i)));
        }
        return all;
    }();
    return kernels[links.toInt()];
}

// Adds `factor` times the kernel of a cell. Arithmetic is modulo 2^16, so that a factor of -1
// exactly undoes one of 1.
void add(Plane<std::uint16_t>& samples, int column, int row, Links links, std::uint16_t factor) {
    const Kernel& kernel = kernelOf(links);
    for (int y = 0; y < kernelSize; ++y) {
        std::uint16_t* const to = samples.row(row * samplesPerCell + y) + column * samplesPerCell;
        const std::uint16_t* const from = kernel.row(y);
        for (int x = 0; x < kernelSize; ++x) {
            to[x] = static_cast<std::uint16_t>(to[x] + static_cast<unsigned>(from[x]) * factor);
        }
    }
}

// The field extends beyond the grid by the kernel's margin, so that every kernel fits in.
int samplesAlong(int cells) {
    return cells * samplesPerCell + 2 * margin;
}

SampleAxis axis(int pixels, int cells, double origin, double cell) {
    const double pixelsPerSample = cell / samplesPerCell;
    return {pixels, samplesAlong(cells), pixelsPerSample, origin - margin * pixelsPerSample};
}

}  // namespace

GlowField::GlowField(const PixelGrid& grid)
    : grid_(grid),
      samples_(samplesAlong(grid.columns), samplesAlong(grid.rows)),
      columns_(axis(grid.size.width(), grid.columns, grid.origin.x(), grid.cell)),
      rows_(axis(grid.size.height(), grid.rows, grid.origin.y(), grid.cell)) {}

void GlowField::change(int column, int row, Links before, Links after) {
    if (before) {
        add(samples_, column, row, before, static_cast<std::uint16_t>(-1));
    }
    if (after) {
        add(samples_, column, row, after, 1);
    }
}

QRect GlowField::reach(int column, int row) const {
    // One sample more than the margin: pixels interpolate between the samples on both sides.
    const double around = (margin + 1.0) / samplesPerCell * grid_.cell;
    const QRectF cell(grid_.origin + QPointF(column, row) * grid_.cell,
                      QSizeF(grid_.cell, grid_.cell));
    return cell.marginsAdded(QMarginsF() + around).toAlignedRect();
}

GlowField::Rows::Rows(const GlowField& field, const QRect& area)
    : field_(field),
      left_(area.left()),
      samples_(field.samples_, field.columns_, area.left(), area.width()) {}

void GlowField::Rows::paint(const Scanline& line) {
    constexpr float scale = glowOpacity / fullSample;
    const auto [sample, weight] = field_.rows_[line.y];
    samples_.seek(sample);
    const int first = line.x - left_;
    pixelKernels().blendBilinear(
        line, Rgb::of(Garden::mint),
        {samples_.upper() + first, samples_.lower() + first, (1 - weight) * scale, weight * scale});
}

}  // namespace Painting
