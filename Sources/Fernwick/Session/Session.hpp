#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "Session/ObservableObject.hpp"
#include "Session/Pace.hpp"
#include "Session/Published.hpp"
#include "SnakeCore/Game.hpp"
#include "SnakeCore/HighScores.hpp"

class KeyMonitor;
class Preferences;
class QTimer;
class SoundEffects;
enum class SoundEffect;

/// The one controller: owns the current run, drives it from a timer, takes the keyboard, plays the
/// sounds and keeps the settings. Views read the published properties and call the operations.
///
/// Main thread only. A property never has a side effect; operations do everything else.
class Session : public ObservableObject {
    Q_OBJECT

public:
    static constexpr std::int64_t columns = 28;
    static constexpr std::int64_t rows = 22;

    /// Reads every stored setting. Neither timer nor key monitor runs yet. Both references must
    /// outlive the session.
    Session(Preferences& preferences, SoundEffects& soundEffects);
    ~Session() override;

    /// The current run; before the first start a fresh one that waits.
    Published<SnakeCore::Game> game;
    /// The timer is advancing the run.
    Published<bool> running;
    /// A run has been started since launch; never false again.
    Published<bool> started;
    /// The chosen pace. Whoever sets it calls `loadBest()` right after.
    Published<Pace> pace;
    /// The personal best of `pace`, in points.
    Published<std::int64_t> best;
    /// The sound switch as stored; changed through `switchSound()`.
    Published<bool> sound;
    Published<SnakeCore::HighScores> scores;
    /// The name offered in the name field.
    Published<QString> playerName;
    /// A finished run waits for a name.
    Published<bool> awaitingName;
    /// The sheet of high scores is up; no run starts, moves or resumes meanwhile.
    Published<bool> showingScores;
    /// The pace whose table the sheet shows.
    Published<Pace> scorePace;
    /// The score of the current run has been saved.
    Published<bool> savedRun;

    /// The identity of the current run and of its entry in the table.
    [[nodiscard]] const SnakeCore::UUID& runID() const { return runID_; }
    /// The pace the current run was started with; its score is saved under this one even when
    /// `pace` has changed since.
    [[nodiscard]] Pace runPace() const { return runPace_; }

    /// Sets `best` to the stored best of `pace`.
    void loadBest();
    /// Sets `sound` and stores it.
    void switchSound(bool on);
    /// Records the finished run under `playerName` and stores the table. Does nothing unless a
    /// name is awaited and is more than white space.
    void saveScore();
    /// Leaves the finished run out of the table.
    void skipSaving();
    /// Begins a new run, also in the middle of one. Refused while a name is awaited or the sheet
    /// is up.
    void start();
    /// Toggles between running and paused. Refused before the first run, after the end of one and
    /// while the sheet is up.
    void pause();
    /// Pauses a running run and shows the sheet, on the table of `pace`.
    void openScores();
    /// Watches the application's key presses from now on; a second call changes nothing.
    void installKeys();
    /// Handles the key at a physical position (see KeyCode). True when the press is to be consumed.
    bool key(std::uint16_t code);

private:
    void schedule();
    void stopTimer();
    void tick();
    void turn(SnakeCore::Direction direction);
    void play(SoundEffect effect);

    Preferences& preferences_;
    SoundEffects& soundEffects_;
    SnakeCore::UUID runID_;
    Pace runPace_ = Pace::classic;
    std::unique_ptr<QTimer> timer_;
    std::unique_ptr<KeyMonitor> monitor_;
};
