#pragma once

#include <QByteArray>
#include <memory>

#include "Session/SoundEffects.hpp"

/// Plays through the desktop's sound server (PulseAudio, or PipeWire in its stead). A thread of
/// its own talks to the server, so that one that is missing, slow or hung is never waited for;
/// between two effects that thread sleeps. A server that went away is looked for again at the
/// next effect. An effect that could only be heard late is not played at all.
class PulseSoundEffects final : public SoundEffects {
public:
    /// Starts neither thread nor connection. `applicationID` is the name by which mixers find the
    /// program's icon and volume.
    explicit PulseSoundEffects(QByteArray applicationID);
    ~PulseSoundEffects() override;

    /// Connects and hands both effects to the server, in the background. Best called once the
    /// first frame is on the screen; the first `play` does it otherwise.
    void prepare();

    void play(SoundEffect effect) override;

private:
    class Loop;

    /// Starts the thread unless it runs. False where the system cannot give us one.
    [[nodiscard]] bool start();

    QByteArray applicationID_;
    std::unique_ptr<Loop> loop_;
};
