#pragma once

#include <array>
#include <cstdint>

#include "Painting/Raster/Pixels.hpp"
#include "Painting/Raster/SampleAxis.hpp"

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

    /// A colour between two rows of samples, as a difference from `under`.
    struct BilinearColour {
        quint32 under;
        std::array<const float*, 3> upper;
        std::array<const float*, 3> lower;
        float lowerWeight;
    };

    /// Light that fades linearly with the distance from a point, up to no light at 1 / perPixel
    /// pixels: the first pixel lies `across` pixels from it along the row, and the square of the
    /// row's distance is `squaredBelow`.
    struct Light {
        float across;
        float squaredBelow;
        float perPixel;
        float opacity;
    };

    /// Blends `colour` over the scanline in place.
    void (*blendBilinear)(const Scanline& line, const Rgb& colour,
                          const BilinearCoverage& coverage);
    /// Blends the scanline over `under`, which is different memory, and stores the result in the
    /// scanline. `mask` is the coverage of each pixel from 0 to 255.
    void (*blendMasked)(const Scanline& line, const quint32* under, const std::uint8_t* mask);
    /// Fills the scanline with a linear gradient.
    void (*fillGradient)(const Scanline& line, const Gradient& gradient);
    /// Fills the scanline with an interpolated colour at `opacity` over `colour.under`.
    void (*fillBilinear)(const Scanline& line, const BilinearColour& colour, float opacity);
    /// Blends light of `colour` over the scanline in place.
    void (*blendLight)(const Scanline& line, const Rgb& colour, const Light& light);
    /// Interpolates `count` pixels of a row between its samples.
    void (*interpolate)(float* pixels, const float* samples, const SampleAxis::Position* positions,
                        int count);
    /// Adds `weight` times `from` to `to`; both have `count` values.
    void (*addScaled)(float* to, const float* from, float weight, int count);
};

/// Runs on every processor.
[[nodiscard]] const PixelKernels& genericPixelKernels();
/// The fastest for this processor, chosen at run time: AVX2 if it has that.
[[nodiscard]] const PixelKernels& pixelKernels();

}  // namespace Painting
