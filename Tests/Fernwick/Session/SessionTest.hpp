#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <chrono>
#include <optional>
#include <ostream>
#include <random>
#include <utility>
#include <vector>

#include "Fernwick/Session/SavedScores.hpp"
#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/TemporaryFolder.hpp"

inline std::ostream& operator<<(std::ostream& out, Session::Phase phase) {
    static constexpr const char* names[] = {"fresh",         "running", "paused",
                                            "awaiting name", "saved",   "skipped"};
    return out << names[static_cast<int>(phase)];
}

/// Records the played sounds in order.
class SoundRecorder : public SoundEffects {
public:
    void play(SoundEffect effect) override { played.push_back(effect); }

    std::vector<SoundEffect> played;
};

/// Stores the table of `saved`, if not empty.
inline Preferences& storeScores(Preferences& preferences, const SavedScores& saved) {
    if (!saved.empty()) {
        preferences.store("high-scores-v1", QByteArray::fromStdString(scoreTable(saved).encoded()));
    }
    return preferences;
}

/// A session with a settings file in a temporary folder. Tests fire its timer explicitly. They
/// change the session through its operations only.
class SessionTest : public ::testing::Test {
protected:
    /// Stores `saved` before the session reads the settings file.
    explicit SessionTest(const SavedScores& saved = {})
        : session(storeScores(preferences, saved), sounds,
                  [this](SnakeCore::Game& game) { step(game); }) {}

    [[nodiscard]] std::filesystem::path settingsPath() const {
        return folder_.path() / "preferences.cbor";
    }

    /// The path of the settings file, with everything stored so far in it.
    [[nodiscard]] std::filesystem::path writtenSettings() const {
        EXPECT_TRUE(preferences.flush(std::chrono::minutes(1)));
        return settingsPath();
    }

    /// The settings file, read anew.
    [[nodiscard]] Storage::PreferencesFile storedPreferences() const {
        return Storage::PreferencesFile(writtenSettings());
    }

    [[nodiscard]] QTimer* timer() const { return session.findChild<QTimer*>(); }
    [[nodiscard]] bool timerIsActive() const { return timer() != nullptr && timer()->isActive(); }

    /// Fires the timer once, even if it is stopped.
    void fireTimer() const { QMetaObject::invokeMethod(timer(), "timeout"); }

    /// Fires the timer until the snake has hit the wall ahead.
    void endRun() const {
        for (std::int64_t tick = 0; tick < Session::columns && timerIsActive(); ++tick) {
            fireTimer();
        }
    }

    /// Fires the timer until the first fruit is eaten, which always lies straight ahead.
    void eatFirstFruit() const {
        while (timerIsActive() && session.game().score() == 0) {
            fireTimer();
        }
    }

    /// Plays a run to its end, after which the session waits for a name.
    void startAndEndRun() {
        session.start();
        endRun();
    }

    void saveScoreAs(const QString& name) {
        session.editName(name);
        session.saveScore();
    }

    /// Starts a run and replaces its game by `game` in the first tick.
    void startRunAt(const SnakeCore::Game& game) {
        session.start();
        next_ = game;
        fireTimer();
    }

private:
    void step(SnakeCore::Game& game) {
        if (next_) {
            game = *std::exchange(next_, std::nullopt);
        } else {
            game.step(random_);
        }
    }

    TemporaryFolder folder_;
    std::optional<SnakeCore::Game> next_;
    // Places the fruit alike in every run: tests that compare colours of pixels would fail whenever
    // the fruit came to lie below one of them.
    std::mt19937 random_;

protected:
    Storage::PreferencesFile preferences{settingsPath()};
    SoundRecorder sounds;
    Session session;
};
