#pragma once

#include <pulse/simple.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

#include "Sound/SoundWave.hpp"

/// Records the output of the running `SoundServer` in the background.
class LoudspeakerRecorder {
public:
    LoudspeakerRecorder() {
        constexpr pa_sample_spec format{
            .format = PA_SAMPLE_S16NE, .rate = Sound::sampleRate, .channels = 1};
        constexpr auto unset = static_cast<std::uint32_t>(-1);
        constexpr pa_buffer_attr buffer{.maxlength = unset,
                                        .tlength = unset,
                                        .prebuf = unset,
                                        .minreq = unset,
                                        .fragsize = pieceSize * sizeof(std::int16_t)};
        stream_ = pa_simple_new(nullptr, "recorder", PA_STREAM_RECORD, "quiet.monitor", "recorder",
                                &format, nullptr, &buffer, nullptr);
        if (stream_ == nullptr) {
            throw std::runtime_error("cannot record");
        }
        thread_ = std::thread(&LoudspeakerRecorder::record, this);
    }
    LoudspeakerRecorder(const LoudspeakerRecorder&) = delete;
    LoudspeakerRecorder& operator=(const LoudspeakerRecorder&) = delete;
    ~LoudspeakerRecorder() {
        ended_ = true;
        thread_.join();
        pa_simple_free(stream_);
    }

    /// The recording without leading and trailing silence.
    [[nodiscard]] std::vector<std::int16_t> sound() {
        const std::scoped_lock lock(guard_);
        const auto loud = [](std::int16_t sample) { return sample != 0; };
        const auto first = std::find_if(recorded_.begin(), recorded_.end(), loud);
        const auto last = std::find_if(recorded_.rbegin(), recorded_.rend(), loud).base();
        return first < last ? std::vector(first, last) : std::vector<std::int16_t>();
    }

    /// Whether the last `samples` recorded are silent.
    [[nodiscard]] bool endsInSilence(std::size_t samples) {
        const std::scoped_lock lock(guard_);
        return recorded_.size() >= samples &&
               std::all_of(recorded_.end() - static_cast<std::ptrdiff_t>(samples), recorded_.end(),
                           [](std::int16_t sample) { return sample == 0; });
    }

private:
    static constexpr std::size_t pieceSize = Sound::sampleRate / 100;

    void record() {
        std::array<std::int16_t, pieceSize> piece{};
        while (!ended_ && pa_simple_read(stream_, piece.data(), sizeof piece, nullptr) == 0) {
            const std::scoped_lock lock(guard_);
            recorded_.insert(recorded_.end(), piece.begin(), piece.end());
        }
    }

    pa_simple* stream_ = nullptr;
    std::atomic<bool> ended_ = false;
    std::mutex guard_;
    std::vector<std::int16_t> recorded_;
    std::thread thread_;
};
