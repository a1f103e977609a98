#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "Session/Session.hpp"
#include "Session/SoundEffects.hpp"
#include "Storage/PreferencesFile.hpp"
#include "Support/TemporaryFolder.hpp"

inline std::ostream& operator<<(std::ostream& out, Session::Phase phase) {
    static constexpr const char* names[] = {"fresh",         "running", "paused",
                                            "awaiting name", "saved",   "skipped"};
    return out << names[static_cast<int>(phase)];
}

/// Records the sounds that were played, in order.
class HeardSounds : public SoundEffects {
public:
    void play(SoundEffect effect) override { heard.push_back(effect); }

    std::vector<SoundEffect> heard;
};

/// Names and scores for a high-score table.
using SavedScores = std::vector<std::pair<std::string, std::int64_t>>;

/// Stores a table with an entry of the pace "Classic" for each of `saved`.
inline Preferences& storeScores(Preferences& preferences, const SavedScores& saved) {
    SnakeCore::HighScores table;
    for (const auto& [name, score] : saved) {
        table.record(SnakeCore::UUID::random(), name, score, "Classic", SnakeCore::Date{0});
    }
    if (!saved.empty()) {
        preferences.store("high-scores-v1", QByteArray::fromStdString(table.encoded()));
    }
    return preferences;
}

/// A session over a real settings file in a temporary folder. Time passes only when a test fires
/// the session's timer.
class SessionTest : public ::testing::Test {
protected:
    /// `saved` is in the settings file before the session reads it.
    explicit SessionTest(const SavedScores& saved = {})
        : session(storeScores(preferences, saved), sounds,
                  [this](SnakeCore::Game& game) { step(game); }) {}

    [[nodiscard]] std::filesystem::path settingsPath() const {
        return folder_.path() / "preferences.cbor";
    }

    /// The settings as a program started now would find them.
    [[nodiscard]] Storage::PreferencesFile onDisk() const {
        return Storage::PreferencesFile(settingsPath());
    }

    [[nodiscard]] QTimer* timer() const { return session.findChild<QTimer*>(); }
    [[nodiscard]] bool timerRuns() const { return timer() != nullptr && timer()->isActive(); }

    /// Fires the session's timer once, even if it has been stopped.
    void fireTimer() const { QMetaObject::invokeMethod(timer(), "timeout"); }

    /// Fires the timer as long as it runs, at most `ticks` times.
    void letPass(int ticks) const {
        for (; ticks > 0 && timerRuns(); --ticks) {
            fireTimer();
        }
    }

    /// Runs straight ahead into the wall.
    void endRun() const { letPass(static_cast<int>(Session::columns)); }

    /// Eats the first fruit, which always lies straight ahead of a fresh snake.
    void eatFirstFruit() const {
        while (timerRuns() && session.game().score() == 0) {
            fireTimer();
        }
    }

    /// Ends a run, which then awaits a name.
    void startAndEndRun() {
        session.start();
        endRun();
    }

    void saveScoreAs(const QString& name) {
        session.editName(name);
        session.saveScore();
    }

    /// Starts a run whose first tick brings it to `game`.
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
            game.step();
        }
    }

    TemporaryFolder folder_;
    std::optional<SnakeCore::Game> next_;

protected:
    Storage::PreferencesFile preferences{settingsPath()};
    HeardSounds sounds;
    Session session;
};
