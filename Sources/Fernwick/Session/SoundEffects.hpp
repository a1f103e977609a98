#pragma once

/// "Pop" when a fruit is eaten, "Tink" when a run ends.
enum class SoundEffect { pop, tink };

/// Plays sound effects without blocking.
class SoundEffects {
public:
    virtual ~SoundEffects() = default;

    /// Starts `effect` and returns at once; effects may overlap. Does nothing where no sound can be
    /// played.
    virtual void play(SoundEffect effect) = 0;
};
