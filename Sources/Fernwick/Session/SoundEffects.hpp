#pragma once

/// "Pop" when a fruit is eaten, "Tink" when a run ends.
enum class SoundEffect { pop, tink };

/// Plays sound effects without blocking.
class SoundEffects {
public:
    virtual ~SoundEffects() = default;

    /// Starts `effect` and returns immediately; effects may overlap. Does nothing if sound is
    /// unavailable.
    virtual void play(SoundEffect effect) = 0;
};
