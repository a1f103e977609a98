#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "Painting/Raster/PixelKernels.hpp"

namespace {

using Painting::genericPixelKernels;
using Painting::PixelKernels;
using Painting::pixelKernels;
using Painting::Scanline;
using Row = std::vector<quint32>;

// All lengths up to several vectors of the widest instruction set.
constexpr int longest = 70;

class PixelKernelsOfThisProcessor : public testing::Test {
protected:
    Row pixels() {
        return filled<quint32>([this] { return 0xFF000000U | (generator_() >> 8U); });
    }
    std::vector<std::uint8_t> mask() {
        return filled<std::uint8_t>([this] { return generator_() >> 24U; });
    }
    std::vector<float> samples() {
        return filled<float>([this] { return static_cast<float>(generator_() % 32769); });
    }
    QPoint point() { return {number(), number()}; }
    int number() { return static_cast<int>(generator_() % 4096); }

private:
    template <typename Value, typename Make>
    std::vector<Value> filled(Make make) {
        std::vector<Value> values(longest);
        std::generate(values.begin(), values.end(), [&] { return static_cast<Value>(make()); });
        return values;
    }

    std::mt19937 generator_{11};
};

Scanline scanlineOf(Row& row, const QPoint& point, int count) {
    return {row.data(), point.x(), point.y(), count};
}

TEST_F(PixelKernelsOfThisProcessor, blendBilinearCoverageLikeTheGenericOnes) {
    for (int count = 0; count <= longest; ++count) {
        const std::vector<float> upper = samples();
        const std::vector<float> lower = samples();
        const PixelKernels::BilinearCoverage coverage{upper.data(), lower.data(), 0.2F / 32768,
                                                      0.15F / 32768};
        const Painting::Rgb colour{166, 240, 163};
        const QPoint at = point();
        Row expected = pixels();
        Row actual = expected;

        genericPixelKernels().blendBilinear(scanlineOf(expected, at, count), colour, coverage);
        pixelKernels().blendBilinear(scanlineOf(actual, at, count), colour, coverage);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, blendMaskedPixelsLikeTheGenericOnes) {
    for (int count = 0; count <= longest; ++count) {
        const Row under = pixels();
        const std::vector<std::uint8_t> coverage = mask();
        const QPoint at = point();
        Row expected = pixels();
        Row actual = expected;

        genericPixelKernels().blendMasked(scanlineOf(expected, at, count), under.data(),
                                          coverage.data());
        pixelKernels().blendMasked(scanlineOf(actual, at, count), under.data(), coverage.data());

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, fillGradientsLikeTheGenericOnes) {
    for (int count = 0; count <= longest; ++count) {
        const PixelKernels::Gradient gradient{{150U << 16U, 3U << 16U, 90U << 16U},
                                              {static_cast<quint32>(number()), 0, 77}};
        const QPoint at = point();
        Row expected = pixels();
        Row actual = expected;

        genericPixelKernels().fillGradient(scanlineOf(expected, at, count), gradient);
        pixelKernels().fillGradient(scanlineOf(actual, at, count), gradient);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST(PixelKernels, keepPixelsWithoutCoverageAndReplaceThoseWithFullCoverage) {
    const Row under{0xFF010203U, 0xFFFFFFFFU, 0xFF000000U, 0xFF7F8081U};
    const Row over{0xFFA0B0C0U, 0xFF000000U, 0xFFFFFFFFU, 0xFF102030U};
    const std::vector<std::uint8_t> none(under.size(), 0);
    const std::vector<std::uint8_t> full(under.size(), 255);
    Row kept = over;
    Row replaced = over;

    pixelKernels().blendMasked(scanlineOf(kept, {3, 5}, 4), under.data(), none.data());
    pixelKernels().blendMasked(scanlineOf(replaced, {3, 5}, 4), under.data(), full.data());

    EXPECT_EQ(kept, under);
    EXPECT_EQ(replaced, over);
}

}  // namespace
