#pragma once

#include <cstdint>
#include <vector>

#include "Session/SoundEffects.hpp"

/// Samples per second of every wave.
constexpr std::uint32_t soundWaveRate = 48000;

/// The effect drawn up from a few decaying tones: one channel of 16-bit samples that begins and
/// ends in silence and stays well below full scale. The same effect is always the same wave.
[[nodiscard]] std::vector<std::int16_t> soundWave(SoundEffect effect);
