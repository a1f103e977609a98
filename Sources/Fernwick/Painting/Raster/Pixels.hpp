#pragma once

#include <QColor>
#include <cstdint>

#include "Painting/Raster/Scanline.hpp"

/// Blending opaque 32-bit pixels. Colours are blended in floating point and rounded with an ordered
/// dither, so that slow gradients on dark colours show no bands. A coverage of 0 leaves a pixel
/// exactly as it was. The loops are written so that compilers vectorize them.
namespace Painting {

/// A colour in floating point; channels from 0 to 255.
struct Rgb {
    float red = 0;
    float green = 0;
    float blue = 0;

    [[nodiscard]] static Rgb of(const QColor& colour) { return of(colour.rgb()); }
    [[nodiscard]] static Rgb of(QRgb colour) {
        return {static_cast<float>(qRed(colour)), static_cast<float>(qGreen(colour)),
                static_cast<float>(qBlue(colour))};
    }
};

// The R2 low-discrepancy sequence as fractions of 2^32: steps of 1/g and 1/g^2, where g is the real
// root of g^3 = g + 1. It spreads evenly in both directions and shows no repeating pattern.
inline constexpr quint32 ditherStepX = 3242174889U;
inline constexpr quint32 ditherStepY = 2447445414U;

/// The dither's phase at a pixel, as a fraction of 2^32.
[[nodiscard]] inline quint32 ditherPhase(int x, int y) {
    return static_cast<quint32>(x) * ditherStepX + static_cast<quint32>(y) * ditherStepY;
}

/// The dither value to add to a channel before rounding down: at least 0 and less than 1.
[[nodiscard]] inline float ditherThreshold(quint32 phase) {
    // Eight bits only, so that 255 plus the largest threshold is below 256 as a float.
    constexpr float scale = 1.0F / 256.0F;
    return static_cast<float>(static_cast<int>(phase >> 24U)) * scale;
}

/// Converts by way of int, which SSE2 and AVX2 do in one instruction; unsigned takes several.
[[nodiscard]] inline float toFloat(quint32 channel) {
    return static_cast<float>(static_cast<int>(channel));
}

[[nodiscard]] inline quint32 blendChannel(quint32 under, float over, float coverage,
                                          float threshold) {
    const float value = toFloat(under);
    return static_cast<quint32>(static_cast<int>(value + (over - value) * coverage + threshold));
}

/// `over` on top of a pixel; `coverage` is from 0 to 1.
[[nodiscard]] inline quint32 blendPixel(quint32 under, const Rgb& over, float coverage,
                                        float threshold) {
    constexpr quint32 channel = 0xFFU;
    return 0xFF000000U |
           blendChannel((under >> 16U) & channel, over.red, coverage, threshold) << 16U |
           blendChannel((under >> 8U) & channel, over.green, coverage, threshold) << 8U |
           blendChannel(under & channel, over.blue, coverage, threshold);
}

/// One pixel on top of another; `mask` is the coverage from 0 to 255.
[[nodiscard]] inline quint32 blendMaskedPixel(quint32 under, quint32 over, std::uint8_t mask,
                                              quint32 phase) {
    constexpr quint32 channel = 0xFFU;
    constexpr float perStep = 1.0F / 255.0F;
    static_assert(255.0F * perStep == 1.0F, "full coverage must give exactly the upper pixel");
    const Rgb colour{toFloat((over >> 16U) & channel), toFloat((over >> 8U) & channel),
                     toFloat(over & channel)};
    return blendPixel(under, colour, toFloat(mask) * perStep, ditherThreshold(phase));
}

/// Blends `colour` over a scanline in place. `coverage(i)` is from 0 to 1.
/// Always inlined, so that a kernel for an instruction set gets its own copy of the loop.
template <typename Coverage>
[[gnu::always_inline]] inline void blendColour(const Scanline& line, const Rgb& colour,
                                               Coverage coverage) {
    quint32* const pixels = line.pixels;
    const quint32 phase = ditherPhase(line.x, line.y);
    for (int i = 0, count = line.count; i < count; ++i) {
        const float threshold = ditherThreshold(phase + static_cast<quint32>(i) * ditherStepX);
        pixels[i] = blendPixel(pixels[i], colour, coverage(i), threshold);
    }
}

}  // namespace Painting
