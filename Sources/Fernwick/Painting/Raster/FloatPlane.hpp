#pragma once

#include <vector>

/// A rectangle of numbers, row by row.
struct FloatPlane {
    FloatPlane(int planeWidth, int planeHeight)
        : width(planeWidth),
          height(planeHeight),
          values(static_cast<std::size_t>(planeWidth) * static_cast<std::size_t>(planeHeight)) {}

    [[nodiscard]] float* row(int y) {
        return values.data() + static_cast<std::ptrdiff_t>(y) * width;
    }
    [[nodiscard]] const float* row(int y) const {
        return values.data() + static_cast<std::ptrdiff_t>(y) * width;
    }

    int width;
    int height;
    std::vector<float> values;
};

/// Blurs with a Gaussian of `sigma` samples; beyond the plane there are zeros.
void blur(FloatPlane& plane, double sigma);
