#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <vector>

#include "Session/KeyCode.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/TemporaryFolder.hpp"

/// Remembers what was played, in order.
class HeardSounds : public SoundEffects {
public:
    void play(SoundEffect effect) override { heard.push_back(effect); }

    std::vector<SoundEffect> heard;
};

/// A session over a real settings file of its own. Time passes only when a test lets the session's
/// own timer fire.
class SessionTest : public ::testing::Test {
protected:
    [[nodiscard]] std::filesystem::path settingsPath() const {
        return folder_.path() / "preferences.cbor";
    }

    /// The settings as a program started now would find them.
    [[nodiscard]] PreferencesFile onDisk() const { return PreferencesFile(settingsPath()); }

    [[nodiscard]] QTimer* timer() const { return session.findChild<QTimer*>(); }
    [[nodiscard]] bool timerRuns() const { return timer() != nullptr && timer()->isActive(); }

    /// One firing of the session's timer, also of one that has been stopped.
    void fireTimer() const { QMetaObject::invokeMethod(timer(), "timeout"); }

    /// Lets the timer fire as long as it runs, at most `ticks` times.
    void letPass(int ticks) const {
        for (; ticks > 0 && timerRuns(); --ticks) {
            fireTimer();
        }
    }

    /// Runs straight ahead into the wall.
    void endRun() const { letPass(static_cast<int>(Session::columns)); }

    /// Gathers the first fruit, which always lies straight ahead of a fresh snake.
    void gatherFirstFruit() const {
        while (timerRuns() && session.game->score() == 0) {
            fireTimer();
        }
    }

    /// Ends a run and leaves it awaiting a name.
    void startAndEndRun() {
        session.start();
        endRun();
    }

private:
    TemporaryFolder folder_;

protected:
    PreferencesFile preferences{settingsPath()};
    HeardSounds sounds;
    Session session{preferences, sounds};
};
