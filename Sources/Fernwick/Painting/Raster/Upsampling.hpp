#pragma once

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "Painting/Raster/Plane.hpp"

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

    [[nodiscard]] const Position& operator[](int pixel) const {
        return positions_[static_cast<std::size_t>(pixel)];
    }

private:
    std::vector<Position> positions_;
};

/// Bilinear upsampling, row by row: two adjacent rows of samples, each interpolated horizontally.
/// The caller interpolates between the two. Going down the picture, each row of samples is
/// interpolated once.
template <typename Sample>
class UpsampledRows {
public:
    /// For `count` pixels from column `first` on. Both references have to outlive this object.
    UpsampledRows(const Plane<Sample>& samples, const SampleAxis& columns, int first, int count)
        : samples_(samples),
          columns_(columns),
          first_(first),
          upper_(static_cast<std::size_t>(count)),
          lower_(static_cast<std::size_t>(count)) {}

    /// Makes `upper()` the given row of samples and `lower()` the next one.
    void seek(int row) {
        if (row == row_) {
            return;
        }
        if (row == row_ + 1 && row_ >= 0) {
            std::swap(upper_, lower_);
        } else {
            interpolate(row, upper_);
        }
        interpolate(row + 1, lower_);
        row_ = row;
    }

    [[nodiscard]] const float* upper() const { return upper_.data(); }
    [[nodiscard]] const float* lower() const { return lower_.data(); }

private:
    void interpolate(int row, std::vector<float>& pixels) const {
        const Sample* const samples = samples_.row(row);
        int pixel = first_;
        for (float& value : pixels) {
            const auto [sample, weight] = columns_[pixel++];
            const auto before = static_cast<float>(samples[sample]);
            const auto after = static_cast<float>(samples[sample + 1]);
            value = before + (after - before) * weight;
        }
    }

    const Plane<Sample>& samples_;
    const SampleAxis& columns_;
    int first_;
    int row_ = -2;
    std::vector<float> upper_;
    std::vector<float> lower_;
};

}  // namespace Painting
