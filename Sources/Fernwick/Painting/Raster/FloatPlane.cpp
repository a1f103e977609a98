#include "Painting/Raster/FloatPlane.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// Beyond this many sigmas a Gaussian is as good as zero.
constexpr double extent = 3;

// The weights of the middle sample and of those on one side of it.
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

void addScaled(float* to, const float* from, float weight, int count) {
    for (int i = 0; i < count; ++i) {
        to[i] += from[i] * weight;
    }
}

// Adds every row to the rows around it. Whole rows at a time are what a processor does well.
void blurDown(const FloatPlane& from, FloatPlane& to, const std::vector<float>& weights) {
    const int reach = static_cast<int>(weights.size()) - 1;
    for (int y = 0; y < to.height; ++y) {
        for (int other = std::max(y - reach, 0); other <= std::min(y + reach, to.height - 1);
             ++other) {
            addScaled(to.row(y), from.row(other),
                      weights[static_cast<std::size_t>(std::abs(other - y))], to.width);
        }
    }
}

void blurAcross(const FloatPlane& from, FloatPlane& to, const std::vector<float>& weights) {
    const int reach = static_cast<int>(weights.size()) - 1;
    for (int y = 0; y < to.height; ++y) {
        for (int shift = -reach; shift <= reach; ++shift) {
            const int first = std::max(-shift, 0);
            const int count = to.width - std::abs(shift);
            addScaled(to.row(y) + first, from.row(y) + first + shift,
                      weights[static_cast<std::size_t>(std::abs(shift))], count);
        }
    }
}

}  // namespace

void blur(FloatPlane& plane, double sigma) {
    const std::vector<float> weights = halfKernel(sigma);
    FloatPlane across(plane.width, plane.height);
    blurAcross(plane, across, weights);
    std::ranges::fill(plane.values, 0.0F);
    blurDown(across, plane, weights);
}
