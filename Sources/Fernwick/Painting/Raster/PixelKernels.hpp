#pragma once

#include <array>
#include <cstdint>

#include "Painting/Raster/Pixels.hpp"

namespace Painting {

/// The per-pixel loops that take most of the time of a frame, compiled for several instruction
/// sets. All of them give exactly the same pixels.
struct PixelKernels {
    /// Coverage between two rows of samples: upper * upperWeight + lower * lowerWeight is from 0
    /// to 1.
    struct BilinearCoverage {
        const float* upper;
        const float* lower;
        float upperWeight;
        float lowerWeight;
    };

    /// Red, green and blue in 16.16 fixed point: at the first pixel, and the change per pixel.
    struct Gradient {
        std::array<quint32, 3> first;
        std::array<quint32, 3> change;
    };

    /// Blends `colour` over the scanline in place.
    void (*blendBilinear)(const Scanline& line, const Rgb& colour,
                          const BilinearCoverage& coverage);
    /// Blends the scanline over `under`, which is different memory, and stores the result in the
    /// scanline. `mask` is the coverage of each pixel from 0 to 255.
    void (*blendMasked)(const Scanline& line, const quint32* under, const std::uint8_t* mask);
    /// Fills the scanline with a linear gradient.
    void (*fillGradient)(const Scanline& line, const Gradient& gradient);
};

/// Runs on every processor.
[[nodiscard]] const PixelKernels& genericPixelKernels();
/// The fastest for this processor, chosen at run time: AVX2 if it has that.
[[nodiscard]] const PixelKernels& pixelKernels();

}  // namespace Painting
