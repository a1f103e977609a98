#pragma once

#include <array>
#include <cstdint>

#include "Painting/Raster/Pixels.hpp"

/// The loops over rows of pixels that a step of the snake spends its time in, each for the plainest
/// processor and for better ones. All give the same pixels.
struct PixelKernels {
    /// Two rows of coverage samples, and what each counts; the weighted sum is from 0 to 1.
    struct Between {
        const float* upper;
        const float* lower;
        float upperWeight;
        float lowerWeight;
    };

    /// Three channels as whole numbers of 2^-16 steps, at the first pixel and from one to the next.
    struct Slope {
        std::array<quint32, 3> first;
        std::array<quint32, 3> growth;
    };

    /// Lays `colour` over `row` in place, covering as the samples say.
    void (*mixBetween)(quint32* row, int count, quint32 phase, const Rgb& colour,
                       const Between& coverage);
    /// Lays `row` over `under`, different memory, and keeps the result in `row`. Each pixel covers
    /// as its byte of `mask` says: 0 not at all, 255 wholly.
    void (*blend)(quint32* row, const quint32* under, const std::uint8_t* mask, int count,
                  quint32 phase);
    /// Fills `row` with colours that change evenly.
    void (*fillSlope)(quint32* row, int count, quint32 phase, const Slope& slope);
};

/// Those that run on every processor.
[[nodiscard]] const PixelKernels& plainPixelKernels();
/// The fastest that this processor has.
[[nodiscard]] const PixelKernels& pixelKernels();
