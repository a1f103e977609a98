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

/// The conversation with the sound server. Lives in the thread of the loop it is given, where
/// nothing waits: every step is taken when the server has answered the one before.
class PulsePlayer {
public:
    using Clock = std::chrono::steady_clock;

    PulsePlayer(pa_mainloop_api& loop, QByteArray applicationID);
    PulsePlayer(const PulsePlayer&) = delete;
    PulsePlayer& operator=(const PulsePlayer&) = delete;
    ~PulsePlayer() { disconnect(); }

    /// Connects unless connected, and hands over the effects that the server does not have.
    void prepare();

    /// Plays an effect that was asked for at `asked`, at once or as soon as the server has it;
    /// never when that would be too late to belong to what is on the screen.
    void play(SoundEffect effect, Clock::time_point asked);

    /// Forgets the server and everything that waited for it.
    void disconnect();

private:
    struct Sample {
        PulsePlayer* player;
        SoundEffect effect;
        std::vector<std::int16_t> wave = {};  ///< only while it is handed over
        pa_stream* upload = nullptr;
        bool ready = false;
    };
    struct Waiting {
        SoundEffect effect;
        Clock::time_point asked;
    };

    static void contextChanged(pa_context* context, void* player);
    static void uploadChanged(pa_stream* stream, void* sample);
    static void playAnswered(pa_context* context, int success, void* player);

    void connect();
    void uploadMissing();
    void upload(Sample& sample);
    void releaseUpload(Sample& sample);
    void startWaiting();
    void start(SoundEffect effect);
    [[nodiscard]] Sample& sampleOf(SoundEffect effect);

    pa_mainloop_api& loop_;
    QByteArray applicationID_;
    pa_context* context_ = nullptr;
    std::array<Sample, 2> samples_;
    std::vector<Waiting> waiting_;
    int unanswered_ = 0;            ///< plays the server has not confirmed
    Clock::time_point lastAnswer_;  ///< or the first of the unanswered plays, if that is later
};
