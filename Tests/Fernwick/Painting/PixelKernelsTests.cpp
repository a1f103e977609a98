#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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

TEST_F(PixelKernelsOfThisProcessor, fillInterpolatedColoursLikeTheGenericOnes) {
    for (int count = 0; count <= longest; ++count) {
        std::array<std::vector<float>, 6> rows;
        for (auto& row : rows) {
            row = samples();
            std::ranges::transform(row, row.begin(), [](float value) { return value / 512; });
        }
        const PixelKernels::BilinearColour colour{0xFF0E1813U,
                                                  {rows[0].data(), rows[1].data(), rows[2].data()},
                                                  {rows[3].data(), rows[4].data(), rows[5].data()},
                                                  0.3F};
        const QPoint at = point();
        Row expected = pixels();
        Row actual = expected;

        genericPixelKernels().fillBilinear(scanlineOf(expected, at, count), colour, 0.4F);
        pixelKernels().fillBilinear(scanlineOf(actual, at, count), colour, 0.4F);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, blendLightLikeTheGenericOnes) {
    for (int count = 0; count <= longest; ++count) {
        const PixelKernels::Light light{static_cast<float>(number()), 3.25F, 1 / 3000.0F, 0.3F};
        const Painting::Rgb colour{166, 240, 163};
        const QPoint at = point();
        Row expected = pixels();
        Row actual = expected;

        genericPixelKernels().blendLight(scanlineOf(expected, at, count), colour, light);
        pixelKernels().blendLight(scanlineOf(actual, at, count), colour, light);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, interpolateAndAddSamplesLikeTheGenericOnes) {
    const Painting::SampleAxis axis(longest, longest / 3, 3);
    for (int count = 0; count <= longest; ++count) {
        const std::vector<float> row = samples();
        std::vector<float> expected = samples();
        std::vector<float> actual = expected;

        genericPixelKernels().interpolate(expected.data(), row.data(), axis.from(0), count);
        genericPixelKernels().addScaled(expected.data(), row.data(), 0.7F, count);
        pixelKernels().interpolate(actual.data(), row.data(), axis.from(0), count);
        pixelKernels().addScaled(actual.data(), row.data(), 0.7F, count);

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
