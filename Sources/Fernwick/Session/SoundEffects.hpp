#pragma once

/// The two sounds of the garden: "Pop" when a fruit is gathered, "Tink" when a run ends.
enum class SoundEffect { pop, tink };

/// Plays sound effects without ever making the caller wait.
class SoundEffects {
public:
    virtual ~SoundEffects() = default;

    /// Starts `effect` and returns at once; effects may overlap. Where no sound can be played
    /// nothing happens and nothing is reported.
    virtual void play(SoundEffect effect) = 0;
};
