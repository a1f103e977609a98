#include "MainWindow/Board/RowLoops.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using Row = std::vector<quint32>;

// All lengths around a few times what a processor takes at once.
constexpr int longest = 70;

class RowLoopsOfThisProcessor : public testing::Test {
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

TEST_F(RowLoopsOfThisProcessor, mixAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const std::vector<float> upper = samples();
        const std::vector<float> lower = samples();
        const RowLoops::Between between{upper.data(), lower.data(), 0.2F / 32768, 0.15F / 32768};
        const Rgb colour{166, 240, 163};
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainRowLoops().mixBetween(expected.data(), count, phase, colour, between);
        rowLoops().mixBetween(actual.data(), count, phase, colour, between);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(RowLoopsOfThisProcessor, blendAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const Row under = pixels();
        const std::vector<std::uint8_t> coverage = mask();
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainRowLoops().blend(expected.data(), under.data(), coverage.data(), count, phase);
        rowLoops().blend(actual.data(), under.data(), coverage.data(), count, phase);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST_F(RowLoopsOfThisProcessor, fillSlopesAsThePlainOnesDo) {
    for (int count = 0; count <= longest; ++count) {
        const RowLoops::Slope slope{{150U << 16U, 3U << 16U, 90U << 16U}, {number() % 4096, 0, 77}};
        const quint32 phase = number();
        Row expected = pixels();
        Row actual = expected;

        plainRowLoops().fillSlope(expected.data(), count, phase, slope);
        rowLoops().fillSlope(actual.data(), count, phase, slope);

        EXPECT_EQ(actual, expected) << count;
    }
}

TEST(RowLoops, keepWhatIsNotCoveredAndReplaceWhatIsWhollyCovered) {
    const Row under{0xFF010203U, 0xFFFFFFFFU, 0xFF000000U, 0xFF7F8081U};
    const Row over{0xFFA0B0C0U, 0xFF000000U, 0xFFFFFFFFU, 0xFF102030U};
    const std::vector<std::uint8_t> none(under.size(), 0);
    const std::vector<std::uint8_t> whole(under.size(), 255);
    Row kept = over;
    Row replaced = over;

    rowLoops().blend(kept.data(), under.data(), none.data(), 4, 12345);
    rowLoops().blend(replaced.data(), under.data(), whole.data(), 4, 12345);

    EXPECT_EQ(kept, under);
    EXPECT_EQ(replaced, over);
}

}  // namespace
