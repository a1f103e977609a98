#include "Sound/SoundWave.hpp"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <span>

namespace Sound {

namespace {

/// One exponentially decaying tone. Its pitch may start higher and glide down, as that of a struck
/// hollow body does. Times are in seconds, to 1/e.
struct Partial {
    float frequency;  ///< Hz
    float level;      ///< relative to the other partials
    float decay;
    float rise = 0;  ///< how much higher the pitch starts, as a fraction of the frequency
    float sink = 1;  ///< how long the glide takes
};

struct Recipe {
    std::span<const Partial> partials;
    float duration;  ///< seconds
    float attack;    ///< seconds from silence to full level
    float peak;      ///< as a fraction of full scale
};

/// A fingertip on a small wooden box: a low note that quickly drops in pitch, the resonance of the
/// wood above it and a short knock.
constexpr Partial popPartials[]{
    {.frequency = 392, .level = 1.0F, .decay = 0.030F, .rise = 0.55F, .sink = 0.012F},
    {.frequency = 1046, .level = 0.28F, .decay = 0.014F, .rise = 0.20F, .sink = 0.008F},
    {.frequency = 2350, .level = 0.10F, .decay = 0.005F},
};

/// A fingernail on a thin glass: inharmonic overtones, shorter the higher they are. The two lowest
/// tones beat slowly, as those of a real glass do.
constexpr Partial tinkPartials[]{
    {.frequency = 2093, .level = 1.0F, .decay = 0.130F},
    {.frequency = 2098, .level = 0.2F, .decay = 0.130F},
    {.frequency = 4856, .level = 0.45F, .decay = 0.070F},
    {.frequency = 8895, .level = 0.16F, .decay = 0.028F},
};

constexpr Recipe pop{.partials = popPartials, .duration = 0.16F, .attack = 0.0020F, .peak = 0.40F};
constexpr Recipe tink{
    .partials = tinkPartials, .duration = 0.60F, .attack = 0.0012F, .peak = 0.32F};

constexpr float secondsPerSample = 1.0F / static_cast<float>(sampleRate);

/// Adds one partial: the imaginary part of a complex number that is multiplied by a constant with
/// each sample, which is far cheaper than calling sin(). It starts at 0.
void add(const Partial& partial, std::span<float> wave) {
    constexpr float turn = 2 * std::numbers::pi_v<float>;
    constexpr std::size_t steadySamples = 16;  // pitch steps this short are inaudible
    const float decayPerSample = std::exp(-secondsPerSample / partial.decay);
    const float sinkPerStep =
        std::exp(-secondsPerSample * static_cast<float>(steadySamples) / partial.sink);
    std::complex<float> tone(partial.level);
    std::complex<float> step;
    float rise = partial.rise;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        if (i % steadySamples == 0) {
            const float angle = turn * partial.frequency * (1 + rise) * secondsPerSample;
            step = std::polar(decayPerSample, angle);
            rise *= sinkPerStep;
        }
        wave[i] += tone.imag();
        tone *= step;
    }
}

/// A raised cosine from 0 to 1; a linear fade could be heard as a click.
float fade(float position) {
    return 0.5F - 0.5F * std::cos(std::numbers::pi_v<float> * std::clamp(position, 0.0F, 1.0F));
}

void shapeEnds(std::span<float> wave, float attack) {
    constexpr float release = 0.25F;  // fraction of the duration, when the partials have decayed
    const auto attackSamples = static_cast<std::size_t>(attack / secondsPerSample);
    const auto releaseSamples = wave.size() / static_cast<std::size_t>(1 / release);
    const auto fadeIn = [](auto sample, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            *sample++ *= fade(static_cast<float>(i) / static_cast<float>(count));
        }
    };
    fadeIn(wave.begin(), attackSamples);
    fadeIn(wave.rbegin(), releaseSamples);
}

}  // namespace

std::vector<std::int16_t> soundWave(SoundEffect effect) {
    const Recipe& recipe = effect == SoundEffect::pop ? pop : tink;
    std::vector<float> wave(static_cast<std::size_t>(recipe.duration / secondsPerSample));
    for (const Partial& partial : recipe.partials) {
        add(partial, wave);
    }
    shapeEnds(wave, recipe.attack);

    const auto [lowest, highest] = std::ranges::minmax(wave);
    const float loudest = std::max(-lowest, highest);
    const float scale = recipe.peak * std::numeric_limits<std::int16_t>::max() / loudest;
    std::vector<std::int16_t> samples(wave.size());
    std::transform(wave.begin(), wave.end(), samples.begin(), [scale](float sample) {
        return static_cast<std::int16_t>(std::lround(sample * scale));
    });
    return samples;
}

}  // namespace Sound
