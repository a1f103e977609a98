#pragma once

#include <type_traits>
#include <utility>
#include <vector>

#include "Painting/Raster/PixelKernels.hpp"
#include "Painting/Raster/Plane.hpp"
#include "Painting/Raster/SampleAxis.hpp"

namespace Painting {

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
        const SampleAxis::Position* const positions = columns_.from(first_);
        const auto count = static_cast<int>(pixels.size());
        if constexpr (std::is_same_v<Sample, float>) {
            pixelKernels().interpolate(pixels.data(), samples, positions, count);
        } else {
            interpolateRow(pixels.data(), samples, positions, count);
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
