#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <numbers>
#include <span>

#include "Sound/SoundWave.hpp"

using Sound::sampleRate;
using Sound::soundWave;

namespace {

using Wave = std::vector<std::int16_t>;

constexpr double fullScale = 32767;

class SoundWaveOf : public testing::TestWithParam<SoundEffect> {};

double loudness(std::span<const std::int16_t> wave) {
    double sum = 0;
    for (const std::int16_t sample : wave) {
        sum += std::pow(sample / fullScale, 2);
    }
    return std::sqrt(sum / static_cast<double>(wave.size()));
}

/// The magnitude of one frequency (Goertzel algorithm), in arbitrary units.
double strength(const Wave& wave, double frequency) {
    const double step = 2 * std::numbers::pi * frequency / sampleRate;
    double real = 0;
    double imaginary = 0;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        real += wave[i] * std::cos(step * static_cast<double>(i));
        imaginary += wave[i] * std::sin(step * static_cast<double>(i));
    }
    return std::hypot(real, imaginary);
}

double strongestFrequency(const Wave& wave) {
    double strongest = 0;
    double most = 0;
    for (double frequency = 100; frequency < 6000; frequency += 25) {
        if (const double now = strength(wave, frequency); now > most) {
            most = now;
            strongest = frequency;
        }
    }
    return strongest;
}

/// CPU time of this thread, which the load of the machine does not change.
std::chrono::nanoseconds processorTime() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

double seconds(const Wave& wave) {
    return static_cast<double>(wave.size()) / sampleRate;
}

}  // namespace

TEST_P(SoundWaveOf, beginsAndEndsInSilence) {
    const Wave wave = soundWave(GetParam());

    EXPECT_EQ(wave.front(), 0);
    EXPECT_EQ(wave.back(), 0);
    EXPECT_LT(loudness(std::span(wave).last(wave.size() / 20)), 0.001);
}

TEST_P(SoundWaveOf, peaksSixDecibelsBelowFullScaleAndIsAudible) {
    const Wave wave = soundWave(GetParam());
    const auto [lowest, highest] = std::minmax_element(wave.begin(), wave.end());

    const double peak = std::max(std::abs(*lowest / fullScale), std::abs(*highest / fullScale));

    EXPECT_LT(peak, 0.5);
    EXPECT_GT(peak, 0.1);
}

TEST_P(SoundWaveOf, hasNoDiscontinuity) {
    const Wave wave = soundWave(GetParam());
    constexpr double highestTone = 3000;
    constexpr double peak = 0.5 * fullScale;
    const double steepest = peak * 2 * std::numbers::pi * highestTone / sampleRate;

    for (std::size_t i = 1; i < wave.size(); ++i) {
        ASSERT_LT(std::abs(wave[i] - wave[i - 1]), steepest) << "at sample " << i;
    }
}

TEST_P(SoundWaveOf, hasASoftAttack) {
    const Wave wave = soundWave(GetParam());
    const auto soft = std::span(wave).first(sampleRate / 4000);

    const auto loud = *std::max_element(wave.begin(), wave.end());
    for (const std::int16_t sample : soft) {
        EXPECT_LT(std::abs(sample), loud / 4);
    }
}

TEST_P(SoundWaveOf, decaysSteadily) {
    const Wave wave = soundWave(GetParam());
    const std::size_t tenth = wave.size() / 10;
    double before = 1;
    for (std::size_t part = 0; part < 10; ++part) {
        const double now = loudness(std::span(wave).subspan(part * tenth, tenth));

        EXPECT_LE(now, before) << "in tenth " << part;
        before = now;
    }
}

TEST_P(SoundWaveOf, isDeterministic) {
    EXPECT_EQ(soundWave(GetParam()), soundWave(GetParam()));
}

TEST_P(SoundWaveOf, isComputedWithinAFrame) {
    const auto before = processorTime();

    EXPECT_FALSE(soundWave(GetParam()).empty());

    EXPECT_LT(processorTime() - before, std::chrono::milliseconds(16));
}

INSTANTIATE_TEST_SUITE_P(SoundWave, SoundWaveOf,
                         testing::Values(SoundEffect::pop, SoundEffect::tink));

TEST(SoundWave, popIsShortAndLow) {
    const Wave pop = soundWave(SoundEffect::pop);

    EXPECT_LE(seconds(pop), 0.2);
    EXPECT_GT(strongestFrequency(pop), 300);
    EXPECT_LT(strongestFrequency(pop), 700);
}

TEST(SoundWave, tinkIsHigherAndLongerThanPop) {
    const Wave tink = soundWave(SoundEffect::tink);

    EXPECT_GT(seconds(tink), 2 * seconds(soundWave(SoundEffect::pop)));
    EXPECT_LE(seconds(tink), 1);
    EXPECT_GT(strongestFrequency(tink), 1800);
    EXPECT_LT(strongestFrequency(tink), 5000);
}
