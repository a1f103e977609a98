#pragma once

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

/// Where the pixels of one axis lie between the samples of a coarser one.
class SampleAxis {
public:
    struct Place {
        int sample;    ///< the sample before the pixel's centre
        float weight;  ///< how far on the way to the next sample, from 0 to 1
    };

    /// `firstPixel` is where the first pixel's centre lies, in samples. Pixels beyond the first or
    /// last of the `samples` (at least 2) take its value.
    SampleAxis(int pixels, int samples, double samplesPerPixel, double firstPixel) {
        places_.reserve(static_cast<std::size_t>(pixels));
        for (int pixel = 0; pixel < pixels; ++pixel) {
            const double at = std::clamp(firstPixel + pixel * samplesPerPixel, 0.0, samples - 1.0);
            const int sample = std::min(static_cast<int>(std::floor(at)), samples - 2);
            places_.push_back({sample, static_cast<float>(at - sample)});
        }
    }

    [[nodiscard]] const Place& operator[](int pixel) const {
        return places_[static_cast<std::size_t>(pixel)];
    }

private:
    std::vector<Place> places_;
};

/// Two neighbouring rows of samples widened to pixels, for going down a picture row by row: each
/// row of samples is widened once.
template <typename Sample>
class WidenedRows {
public:
    /// Serves the pixels from `first` on, `count` of them.
    WidenedRows(const Sample* samples, int stride, const SampleAxis& columns, int first, int count)
        : samples_(samples),
          stride_(stride),
          columns_(columns),
          first_(first),
          upper_(static_cast<std::size_t>(count)),
          lower_(static_cast<std::size_t>(count)) {}

    /// Makes `upper()` the given row of samples and `lower()` the one after it.
    void seek(int row) {
        if (row == row_) {
            return;
        }
        if (row == row_ + 1 && row_ >= 0) {
            std::swap(upper_, lower_);
        } else {
            widen(row, upper_);
        }
        widen(row + 1, lower_);
        row_ = row;
    }

    [[nodiscard]] const float* upper() const { return upper_.data(); }
    [[nodiscard]] const float* lower() const { return lower_.data(); }

private:
    void widen(int row, std::vector<float>& pixels) const {
        const Sample* const samples = samples_ + static_cast<std::ptrdiff_t>(row) * stride_;
        int pixel = first_;
        for (float& value : pixels) {
            const auto [sample, weight] = columns_[pixel++];
            const auto before = static_cast<float>(samples[sample]);
            const auto after = static_cast<float>(samples[sample + 1]);
            value = before + (after - before) * weight;
        }
    }

    const Sample* samples_;
    int stride_;
    const SampleAxis& columns_;
    int first_;
    int row_ = -2;
    std::vector<float> upper_;
    std::vector<float> lower_;
};
