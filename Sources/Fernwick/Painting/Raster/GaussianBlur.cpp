#include "Painting/Raster/GaussianBlur.hpp"

#include <QPoint>
#include <cmath>
#include <numeric>

#include "Painting/Raster/PixelKernels.hpp"

namespace {

using FloatPlane = Painting::Plane<float>;

// The kernel is cut off at this many sigmas.
constexpr double extent = 3;

// The right half of the kernel, starting with its centre. The whole kernel sums to 1.
std::vector<float> halfKernel(double sigma) {
    std::vector<float> weights(static_cast<std::size_t>(std::ceil(extent * sigma)) + 1);
    for (std::size_t i = 0; i < weights.size(); ++i) {
        const double distance = static_cast<double>(i) / sigma;
        weights[i] = static_cast<float>(std::exp(-distance * distance / 2));
    }
    const float sum = std::accumulate(weights.begin(), weights.end(), 0.0F) * 2 - weights[0];
    for (float& weight : weights) {
        weight /= sum;
    }
    return weights;
}

// Blurs along one axis: (1, 0) or (0, 1). Adds whole rows, which vectorizes; summing up column by
// column would not.
void blurAlong(const QPoint& axis, const FloatPlane& from, FloatPlane& to,
               const std::vector<float>& weights) {
    const Painting::PixelKernels& kernels = Painting::pixelKernels();
    const int radius = static_cast<int>(weights.size()) - 1;
    for (int y = 0; y < to.height(); ++y) {
        for (int distance = -radius; distance <= radius; ++distance) {
            const QPoint shift = axis * distance;
            if (y + shift.y() >= 0 && y + shift.y() < to.height()) {
                const int first = std::max(-shift.x(), 0);
                kernels.addScaled(to.row(y) + first, from.row(y + shift.y()) + first + shift.x(),
                                  weights[static_cast<std::size_t>(std::abs(distance))],
                                  to.width() - std::abs(shift.x()));
            }
        }
    }
}

}  // namespace

void Painting::gaussianBlur(std::span<Plane<float>> planes, double sigma) {
    const std::vector<float> weights = halfKernel(sigma);
    // One for all planes: at 4K each is a megabyte of memory that the kernel has to clear.
    FloatPlane blurred(planes.front().width(), planes.front().height());
    for (FloatPlane& plane : planes) {
        blurred.fill(0);
        blurAlong({1, 0}, plane, blurred, weights);
        plane.fill(0);
        blurAlong({0, 1}, blurred, plane, weights);
    }
}
