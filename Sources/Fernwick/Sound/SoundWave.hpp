#pragma once

#include <cstdint>
#include <vector>

#include "Session/SoundEffects.hpp"

namespace Sound {

/// Samples per second.
constexpr std::uint32_t sampleRate = 48000;

/// Synthesizes an effect from a few decaying tones: mono 16-bit samples that begin and end in
/// silence and peak at least 6 dB below full scale. Deterministic.
[[nodiscard]] std::vector<std::int16_t> soundWave(SoundEffect effect);

}  // namespace Sound
