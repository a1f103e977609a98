#include "Painting/Raster/PixelKernels.hpp"

// Every loop is written once, and compiled into a function for each kind of processor. None of them
// is allowed to fuse a product with a sum, which would round differently.
#define FERNWICK_INLINE [[gnu::always_inline]] inline

namespace {

FERNWICK_INLINE void mixBetweenLoop(quint32* row, int count, quint32 phase, const Rgb& colour,
                                    const PixelKernels::Between& coverage) {
    const auto [upper, lower, upperWeight, lowerWeight] = coverage;
    const Rgb over = colour;
    for (int i = 0; i < count; ++i) {
        const float rounding =
            Pixels::threshold(phase + static_cast<quint32>(i) * Pixels::patternStepX);
        row[i] = Pixels::mixPixel(row[i], over, upper[i] * upperWeight + lower[i] * lowerWeight,
                                  rounding);
    }
}

FERNWICK_INLINE void blendLoop(quint32* __restrict row, const quint32* __restrict under,
                               const std::uint8_t* __restrict mask, int count, quint32 phase) {
    for (int i = 0; i < count; ++i) {
        row[i] = Pixels::blendPixel(under[i], row[i], mask[i],
                                    phase + static_cast<quint32>(i) * Pixels::patternStepX);
    }
}

FERNWICK_INLINE void fillSlopeLoop(quint32* row, int count, quint32 phase,
                                   const PixelKernels::Slope& slope) {
    constexpr int fractionBits = 16;
    const auto [red, green, blue] = slope.first;
    const auto [redGrowth, greenGrowth, blueGrowth] = slope.growth;
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<quint32>(i);
        const quint32 rounding = (phase + at * Pixels::patternStepX) >> fractionBits;
        row[i] = 0xFF000000U | ((red + at * redGrowth + rounding) >> fractionBits) << 16U |
                 ((green + at * greenGrowth + rounding) >> fractionBits) << 8U |
                 ((blue + at * blueGrowth + rounding) >> fractionBits);
    }
}

void mixBetween(quint32* row, int count, quint32 phase, const Rgb& colour,
                const PixelKernels::Between& coverage) {
    mixBetweenLoop(row, count, phase, colour, coverage);
}

void blend(quint32* row, const quint32* under, const std::uint8_t* mask, int count, quint32 phase) {
    blendLoop(row, under, mask, count, phase);
}

void fillSlope(quint32* row, int count, quint32 phase, const PixelKernels::Slope& slope) {
    fillSlopeLoop(row, count, phase, slope);
}

constexpr PixelKernels plain{mixBetween, blend, fillSlope};

#if defined(__x86_64__)

[[gnu::target("avx2")]] void mixBetweenAvx2(quint32* row, int count, quint32 phase,
                                            const Rgb& colour,
                                            const PixelKernels::Between& coverage) {
    mixBetweenLoop(row, count, phase, colour, coverage);
}

[[gnu::target("avx2")]] void blendAvx2(quint32* row, const quint32* under, const std::uint8_t* mask,
                                       int count, quint32 phase) {
    blendLoop(row, under, mask, count, phase);
}

[[gnu::target("avx2")]] void fillSlopeAvx2(quint32* row, int count, quint32 phase,
                                           const PixelKernels::Slope& slope) {
    fillSlopeLoop(row, count, phase, slope);
}

constexpr PixelKernels avx2{mixBetweenAvx2, blendAvx2, fillSlopeAvx2};

const PixelKernels& fastest() {
    return __builtin_cpu_supports("avx2") != 0 ? avx2 : plain;
}

#else

const PixelKernels& fastest() {
    return plain;
}

#endif

}  // namespace

const PixelKernels& plainPixelKernels() {
    return plain;
}

const PixelKernels& pixelKernels() {
    static const PixelKernels& loops = fastest();
    return loops;
}
