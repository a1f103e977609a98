#pragma once

#include <QColor>
#include <cstdint>

/// A colour as the pixel loops mix it: channels from 0 to 255.
struct Rgb {
    float red = 0;
    float green = 0;
    float blue = 0;

    [[nodiscard]] static Rgb of(const QColor& colour) {
        return {static_cast<float>(colour.red()), static_cast<float>(colour.green()),
                static_cast<float>(colour.blue())};
    }
};

/// The loops that lay colour over rows of opaque 32-bit pixels. They mix in floating point and
/// round by a fine still pattern, so that slow gradients on the dark ground show no steps; a pixel
/// of coverage 0 keeps its value exactly. Written so that compilers turn them into vector code.
namespace Pixels {

// The two numbers of the plane's generalised golden ratio, as fractions of 2^32: a pattern that
// spreads evenly in both directions and never repeats visibly.
inline constexpr quint32 patternStepX = 3242174889U;
inline constexpr quint32 patternStepY = 2447445414U;

/// The pattern's phase at a pixel.
[[nodiscard]] inline quint32 phase(int x, int y) {
    return static_cast<quint32>(x) * patternStepX + static_cast<quint32>(y) * patternStepY;
}

/// The amount to add before rounding down, from 0 to just below 1.
[[nodiscard]] inline float threshold(quint32 phase) {
    // Only eight bits, so that 255 plus the largest one stays below 256 in a float.
    constexpr float scale = 1.0F / 256.0F;
    return static_cast<float>(static_cast<int>(phase >> 24U)) * scale;
}

[[nodiscard]] inline quint32 mixChannel(quint32 under, float over, float coverage, float rounding) {
    const float value = static_cast<float>(static_cast<int>(under));
    return static_cast<quint32>(static_cast<int>(value + (over - value) * coverage + rounding));
}

[[nodiscard]] inline quint32 mixPixel(quint32 under, const Rgb& over, float coverage,
                                      float rounding) {
    constexpr quint32 channel = 0xFFU;
    return 0xFF000000U | mixChannel((under >> 16U) & channel, over.red, coverage, rounding) << 16U |
           mixChannel((under >> 8U) & channel, over.green, coverage, rounding) << 8U |
           mixChannel(under & channel, over.blue, coverage, rounding);
}

/// Lays one pixel over another. `coverage` is from 0 to 255.
[[nodiscard]] inline quint32 blendPixel(quint32 under, quint32 over, std::uint8_t coverage,
                                        quint32 phase) {
    constexpr quint32 channel = 0xFFU;
    constexpr float perStep = 1.0F / 255.0F;
    static_assert(255.0F * perStep == 1.0F, "what covers wholly keeps its value");
    const Rgb colour{static_cast<float>(static_cast<int>((over >> 16U) & channel)),
                     static_cast<float>(static_cast<int>((over >> 8U) & channel)),
                     static_cast<float>(static_cast<int>(over & channel))};
    return mixPixel(under, colour, static_cast<float>(static_cast<int>(coverage)) * perStep,
                    threshold(phase));
}

/// Lays `colour` over `row` in place. `coverage(i)` is from 0 to 1; `start` is the phase of the
/// first pixel.
template <typename Coverage>
void mixRow(quint32* row, int count, quint32 start, const Rgb& colour, Coverage coverage) {
    for (int i = 0; i < count; ++i) {
        const float rounding = threshold(start + static_cast<quint32>(i) * patternStepX);
        row[i] = mixPixel(row[i], colour, coverage(i), rounding);
    }
}

/// Fills `row` with what `colour(i)` gives over `under` at one coverage for all.
template <typename Colour>
void fillRow(quint32* row, int count, quint32 start, quint32 under, float coverage, Colour colour) {
    for (int i = 0; i < count; ++i) {
        const float rounding = threshold(start + static_cast<quint32>(i) * patternStepX);
        row[i] = mixPixel(under, colour(i), coverage, rounding);
    }
}

}  // namespace Pixels
