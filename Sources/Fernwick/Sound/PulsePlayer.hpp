#pragma once

#include <QByteArray>
#include <array>
#include <chrono>
#include <cstdint>
#include <vector>

#include "Session/SoundEffects.hpp"

struct pa_context;
struct pa_mainloop_api;
struct pa_stream;

namespace Sound {

/// A client of the sound server that uploads the effects to its sample cache and plays them. Used
/// only in the thread of its main loop, and fully asynchronous: libpulse's callbacks drive it.
/// Reconnects with the next effect after the server has gone.
class PulsePlayer {
public:
    using Clock = std::chrono::steady_clock;

    PulsePlayer(pa_mainloop_api& loop, QByteArray applicationID);
    PulsePlayer(const PulsePlayer&) = delete;
    PulsePlayer& operator=(const PulsePlayer&) = delete;
    ~PulsePlayer() { disconnect(); }

    /// Connects if necessary, and uploads the effects that the server does not have.
    void prepare();

    /// Plays an effect as soon as the server has it. Drops it when more than 150 ms have passed
    /// since `requested`, as it would no longer match the picture.
    void play(SoundEffect effect, Clock::time_point requested);

    /// Disconnects and drops all waiting effects.
    void disconnect();

private:
    struct Sample {
        PulsePlayer* player;
        SoundEffect effect;
        std::vector<std::int16_t> wave = {};  ///< only during the upload
        pa_stream* upload = nullptr;
        bool ready = false;
    };
    struct Waiting {
        SoundEffect effect;
        Clock::time_point requested;
    };

    static void contextChanged(pa_context* context, void* player);
    static void uploadChanged(pa_stream* stream, void* sample);
    static void playConfirmed(pa_context* context, int success, void* player);

    void connect();
    /// Logs libpulse's error and disconnects.
    void fail(const char* what);
    void uploadMissing();
    void upload(Sample& sample);
    void releaseUpload(Sample& sample);
    void startWaiting();
    void start(SoundEffect effect);

    pa_mainloop_api& loop_;
    QByteArray applicationID_;
    pa_context* context_ = nullptr;
    std::array<Sample, 2> samples_;
    std::vector<Waiting> waiting_;
    int pending_ = 0;              ///< play requests that the server has not confirmed
    Clock::time_point lastReply_;  ///< or the first pending request, if that is later
};

}  // namespace Sound
