#include "Painting/Raster/PixelKernels.hpp"

#include <algorithm>
#include <cmath>

namespace {

using Painting::PixelKernels;
using Painting::Rgb;
using Painting::SampleAxis;
using Painting::Scanline;

// Each loop is written once and also inlined into a function for AVX2. No set may include
// FMA: a fused multiply-add rounds differently, and the pixels would depend on the processor.

[[gnu::always_inline]] inline void blendBilinear(const Scanline& line, const Rgb& colour,
                                                 const PixelKernels::BilinearCoverage& coverage) {
    const auto [pixels, x, y, count] = line;
    const auto [upper, lower, upperWeight, lowerWeight] = coverage;
    const quint32 phase = Painting::ditherPhase(x, y);
    const Rgb over = colour;
    for (int i = 0; i < count; ++i) {
        const float threshold =
            Painting::ditherThreshold(phase + static_cast<quint32>(i) * Painting::ditherStepX);
        pixels[i] = Painting::blendPixel(
            pixels[i], over, upper[i] * upperWeight + lower[i] * lowerWeight, threshold);
    }
}

[[gnu::always_inline]] inline void blendMasked(const Scanline& line,
                                               const quint32* __restrict under,
                                               const std::uint8_t* __restrict mask) {
    quint32* const __restrict pixels = line.pixels;
    const int count = line.count;
    const quint32 phase = Painting::ditherPhase(line.x, line.y);
    for (int i = 0; i < count; ++i) {
        pixels[i] = Painting::blendMaskedPixel(
            under[i], pixels[i], mask[i], phase + static_cast<quint32>(i) * Painting::ditherStepX);
    }
}

[[gnu::always_inline]] inline void fillGradient(const Scanline& line,
                                                const PixelKernels::Gradient& gradient) {
    constexpr int fractionBits = 16;
    const auto [pixels, x, y, count] = line;
    const auto [red, green, blue] = gradient.first;
    const auto [redChange, greenChange, blueChange] = gradient.change;
    const quint32 phase = Painting::ditherPhase(x, y);
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<quint32>(i);
        const quint32 threshold = (phase + at * Painting::ditherStepX) >> fractionBits;
        pixels[i] = 0xFF000000U | ((red + at * redChange + threshold) >> fractionBits) << 16U |
                    ((green + at * greenChange + threshold) >> fractionBits) << 8U |
                    ((blue + at * blueChange + threshold) >> fractionBits);
    }
}

[[gnu::always_inline]] inline void fillBilinear(const Scanline& line,
                                                const PixelKernels::BilinearColour& colour,
                                                float opacity) {
    const auto [pixels, x, y, count] = line;
    const auto [upperRed, upperGreen, upperBlue] = colour.upper;
    const auto [lowerRed, lowerGreen, lowerBlue] = colour.lower;
    const quint32 under = colour.under;
    const float weight = colour.lowerWeight;
    const Rgb plain = Rgb::of(under);
    const quint32 phase = Painting::ditherPhase(x, y);
    for (int i = 0; i < count; ++i) {
        const Rgb over{plain.red + (upperRed[i] + (lowerRed[i] - upperRed[i]) * weight),
                       plain.green + (upperGreen[i] + (lowerGreen[i] - upperGreen[i]) * weight),
                       plain.blue + (upperBlue[i] + (lowerBlue[i] - upperBlue[i]) * weight)};
        const float threshold =
            Painting::ditherThreshold(phase + static_cast<quint32>(i) * Painting::ditherStepX);
        pixels[i] = Painting::blendPixel(under, over, opacity, threshold);
    }
}

[[gnu::always_inline]] inline void blendLight(const Scanline& line, const Rgb& colour,
                                              const PixelKernels::Light& light) {
    Painting::blendColour(line, colour, [light](int i) {
        const float across = light.across + static_cast<float>(i);
        const float distance = std::sqrt(across * across + light.squaredBelow);
        return std::max(1 - distance * light.perPixel, 0.0F) * light.opacity;
    });
}

[[gnu::always_inline]] inline void interpolate(float* pixels, const float* samples,
                                               const SampleAxis::Position* positions, int count) {
    Painting::interpolateRow(pixels, samples, positions, count);
}

[[gnu::always_inline]] inline void addScaled(float* __restrict to, const float* __restrict from,
                                             float weight, int count) {
    for (int i = 0; i < count; ++i) {
        to[i] += from[i] * weight;
    }
}

constexpr PixelKernels generic{blendBilinear, blendMasked, fillGradient, fillBilinear,
                               blendLight,    interpolate, addScaled};

#if defined(__x86_64__)

[[gnu::target("avx2")]] void blendBilinearAvx2(const Scanline& line, const Rgb& colour,
                                               const PixelKernels::BilinearCoverage& coverage) {
    blendBilinear(line, colour, coverage);
}

[[gnu::target("avx2")]] void blendMaskedAvx2(const Scanline& line, const quint32* under,
                                             const std::uint8_t* mask) {
    blendMasked(line, under, mask);
}

[[gnu::target("avx2")]] void fillGradientAvx2(const Scanline& line,
                                              const PixelKernels::Gradient& gradient) {
    fillGradient(line, gradient);
}

[[gnu::target("avx2")]] void fillBilinearAvx2(const Scanline& line,
                                              const PixelKernels::BilinearColour& colour,
                                              float opacity) {
    fillBilinear(line, colour, opacity);
}

[[gnu::target("avx2")]] void blendLightAvx2(const Scanline& line, const Rgb& colour,
                                            const PixelKernels::Light& light) {
    blendLight(line, colour, light);
}

[[gnu::target("avx2")]] void interpolateAvx2(float* pixels, const float* samples,
                                             const SampleAxis::Position* positions, int count) {
    interpolate(pixels, samples, positions, count);
}

[[gnu::target("avx2")]] void addScaledAvx2(float* to, const float* from, float weight, int count) {
    addScaled(to, from, weight, count);
}

constexpr PixelKernels avx2{blendBilinearAvx2, blendMaskedAvx2, fillGradientAvx2, fillBilinearAvx2,
                            blendLightAvx2,    interpolateAvx2, addScaledAvx2};

#endif

}  // namespace

const Painting::PixelKernels& Painting::genericPixelKernels() {
    return generic;
}

const Painting::PixelKernels& Painting::pixelKernels() {
#if defined(__x86_64__)
    static const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;
    return hasAvx2 ? avx2 : generic;
#else
    return generic;
#endif
}
