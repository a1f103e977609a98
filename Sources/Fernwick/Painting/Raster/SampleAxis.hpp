#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Painting {

/// Maps the pixels of one axis to positions between the samples of a coarser grid.
class SampleAxis {
public:
    struct Position {
        int sample;    ///< the last sample at or before the pixel's centre
        float weight;  ///< of the next sample, from 0 to 1
    };

    /// The first sample begins at `origin`, in pixels. There are at least two samples; pixels
    /// outside of them take the value of the nearest one.
    SampleAxis(int pixels, int samples, double pixelsPerSample, double origin = 0) {
        const double samplesPerPixel = 1 / pixelsPerSample;
        const double first = (0.5 - origin) * samplesPerPixel - 0.5;
        positions_.reserve(static_cast<std::size_t>(pixels));
        for (int pixel = 0; pixel < pixels; ++pixel) {
            const double at = std::clamp(first + pixel * samplesPerPixel, 0.0, samples - 1.0);
            const int sample = std::min(static_cast<int>(std::floor(at)), samples - 2);
            positions_.push_back({sample, static_cast<float>(at - sample)});
        }
    }

    [[nodiscard]] const Position& operator[](int pixel) const { return *from(pixel); }
    /// The positions from a pixel on.
    [[nodiscard]] const Position* from(int pixel) const { return positions_.data() + pixel; }

private:
    std::vector<Position> positions_;
};

/// Interpolates `count` pixels of a row between its samples.
template <typename Sample>
[[gnu::always_inline]] inline void interpolateRow(float* pixels, const Sample* samples,
                                                  const SampleAxis::Position* positions,
                                                  int count) {
    for (int i = 0; i < count; ++i) {
        const auto [sample, weight] = positions[i];
        const auto before = static_cast<float>(samples[sample]);
        const auto after = static_cast<float>(samples[sample + 1]);
        pixels[i] = before + (after - before) * weight;
    }
}

}  // namespace Painting
