#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "Painting/Raster/PixelKernels.hpp"

namespace {

using Row = std::vector<quint32>;

// All lengths around a few times what a processor takes at once.
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
    quint32 number() { return static_cast<quint32>(generator_()); }

private:
    template <typename Value, typename Make>
    std::vector<Value> filled(Make make) {
        std::vector<Value> values(longest);
        std::generate(values.begin(), values.end(), [&] { return static_cast<Value>(make()); });
        return values;
    }

    std::mt19937 generator_{11};
};

TEST_F(PixelKernelsOfThisProcessor, mixAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const std::vector<float> upper = samples();
        const std::vector<float> lower = samples();
        const PixelKernels::Between between{upper.data(), lower.data(), 0.2F / 32768,
                                            0.15F / 32768};
        const Rgb colour{166, 240, 163};
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainPixelKernels().mixBetween(expected.data(), count, phase, colour, between);
        pixelKernels().mixBetween(actual.data(), count, phase, colour, between);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, blendAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const Row under = pixels();
        const std::vector<std::uint8_t> coverage = mask();
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainPixelKernels().blend(expected.data(), under.data(), coverage.data(), count, phase);
        pixelKernels().blend(actual.data(), under.data(), coverage.data(), count, phase);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(PixelKernelsOfThisProcessor, fillSlopesAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const PixelKernels::Slope slope{{150U << 16U, 3U << 16U, 90U << 16U},
                                        {number() % 4096, 0, 77}};
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainPixelKernels().fillSlope(expected.data(), count, phase, slope);
        pixelKernels().fillSlope(actual.data(), count, phase, slope);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST(PixelKernels, keepWhatIsNotCoveredAndReplaceWhatIsWhollyCovered) {
    const Row under{0xFF010203U, 0xFFFFFFFFU, 0xFF000000U, 0xFF7F8081U};
    const Row over{0xFFA0B0C0U, 0xFF000000U, 0xFFFFFFFFU, 0xFF102030U};
    const std::vector<std::uint8_t> none(under.size(), 0);
    const std::vector<std::uint8_t> whole(under.size(), 255);
    Row kept = over;
    Row replaced = over;

    pixelKernels().blend(kept.data(), under.data(), none.data(), 4, 12345);
    pixelKernels().blend(replaced.data(), under.data(), whole.data(), 4, 12345);

    EXPECT_EQ(kept, under);
    EXPECT_EQ(replaced, over);
}

}  // namespace
