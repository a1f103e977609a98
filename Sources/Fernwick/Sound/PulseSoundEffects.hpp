#pragma once

#include <QByteArray>
#include <memory>
#include <optional>

#include "Session/SoundEffects.hpp"

namespace Sound {

/// Plays the effects through PulseAudio, or PipeWire's replacement for it. A separate thread
/// talks to the server, so a missing, slow or hung server never blocks the caller; between effects
/// the thread sleeps. Reconnects with the next effect after the connection was lost, and drops
/// effects that would be late. Logs to "fernwick.sound".
class PulseSoundEffects final : public SoundEffects {
public:
    /// Starts neither the thread nor a connection. `applicationID` names the icon that volume
    /// mixers show.
    explicit PulseSoundEffects(QByteArray applicationID);
    ~PulseSoundEffects() override;

    /// Connects and uploads both effects in the background. Call it after the first frame;
    /// otherwise the first `play` does it.
    void prepare() { send(std::nullopt); }

    void play(SoundEffect effect) override { send(effect); }

private:
    class Thread;

    /// Starts the thread if necessary. Does nothing without libpulse.
    void send(std::optional<SoundEffect> effect);

    QByteArray applicationID_;
    std::unique_ptr<Thread> thread_;
};

}  // namespace Sound
