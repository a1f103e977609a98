#pragma once

#include <QObject>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

#include "Session/GameKey.hpp"
#include "Session/Pace.hpp"
#include "SnakeCore/Game.hpp"
#include "SnakeCore/HighScores.hpp"

class Preferences;
class QTimer;
class SoundEffects;
enum class SoundEffect;

/// The one controller: owns the current run, advances it on a timer, takes the game's keys, plays
/// the sounds and keeps the settings. Views read the getters, call the operations and refresh on
/// `changed()`. Main thread only.
class Session : public QObject {
    Q_OBJECT

public:
    /// The size of the board, in cells.
    static constexpr std::int64_t columns = 28;
    static constexpr std::int64_t rows = 22;

    enum class Phase {
        fresh,         ///< no run has been started since launch
        running,       ///< the timer advances the run
        paused,        ///< the run can be resumed
        awaitingName,  ///< the run has ended and its score can be saved
        saved,         ///< the run has ended and its score is saved
        skipped,       ///< the run has ended and its score was not saved
    };

    /// What lies over the screen. No run starts or resumes below it.
    enum class Sheet {
        none,
        scores,  ///< the high scores
        keys,    ///< the keys of the game
        about,   ///< the version, and what the game is built with
    };

    /// Moves a game on by one step.
    using Step = std::function<void(SnakeCore::Game&)>;

    /// Reads every stored setting and starts nothing. The references must outlive the session.
    /// `step` is what a tick does to the game; tests and the gallery pass their own, so that the
    /// fruit grows where they want it.
    Session(
        Preferences& preferences, SoundEffects& soundEffects,
        Step step = [](SnakeCore::Game& game) { game.step(); });
    ~Session() override;

    [[nodiscard]] Phase phase() const { return phase_; }
    [[nodiscard]] bool started() const { return phase_ != Phase::fresh; }
    [[nodiscard]] bool running() const { return phase_ == Phase::running; }
    [[nodiscard]] bool awaitingName() const { return phase_ == Phase::awaitingName; }
    [[nodiscard]] bool savedRun() const { return phase_ == Phase::saved; }
    /// A run is running or paused.
    [[nodiscard]] bool inRun() const { return running() || phase_ == Phase::paused; }

    /// The current run; before the first start, a fresh one.
    [[nodiscard]] const SnakeCore::Game& game() const { return game_; }
    /// The chosen pace.
    [[nodiscard]] Pace pace() const { return pace_; }
    /// The personal best of `pace()`, in points.
    [[nodiscard]] std::int64_t best() const { return best_; }
    /// Whether sound effects are on.
    [[nodiscard]] bool sound() const { return sound_; }
    [[nodiscard]] const SnakeCore::HighScores& scores() const { return scores_; }
    /// Whether a best or a table of scores is stored.
    [[nodiscard]] bool hasStoredScores() const;
    /// The text of the name field.
    [[nodiscard]] const QString& playerName() const { return playerName_; }
    [[nodiscard]] Sheet sheet() const { return sheet_; }
    /// Whether the high-scores sheet is up.
    [[nodiscard]] bool showingScores() const { return sheet_ == Sheet::scores; }
    /// The pace whose table the high-scores sheet shows.
    [[nodiscard]] Pace scorePace() const { return scorePace_; }
    /// The identity of the current run and of its entry in the table.
    [[nodiscard]] const SnakeCore::UUID& runID() const { return runID_; }
    /// The pace the current run was started with. Its score is saved under this pace, even when
    /// `pace()` has changed since.
    [[nodiscard]] Pace runPace() const { return runPace_; }

    /// Whether a menu is in use: the run does not advance, and the keys are not the game's.
    [[nodiscard]] bool held() const { return held_; }

    /// Begins a new run, even during another one. Does nothing while waiting for a name or while
    /// a sheet is open.
    void start();
    /// Toggles between running and paused. Does nothing outside of a run or while a sheet is
    /// open.
    void pause();
    /// Sets `pace()` and loads its best. A running timer keeps its interval until the next resume.
    void choosePace(Pace pace);
    void editName(const QString& name);
    /// Records the finished run under `playerName()` and stores the table and the name. A stored
    /// table that could not be read is copied first. Does nothing unless waiting for a name, or if
    /// the name is only white space.
    void saveScore();
    /// Ends the name entry without recording the run. Does nothing unless waiting for a name.
    void skipSaving();
    /// Pauses a running run and shows `sheet`, in place of one that is open. The high scores begin
    /// with the table of `pace()`.
    void openSheet(Sheet sheet);
    void closeSheet();
    void openScores() { openSheet(Sheet::scores); }
    /// Closes the sheet if it is that of the high scores.
    void closeScores();
    void chooseScorePace(Pace pace);
    /// Turns the sound on or off and stores the setting.
    void setSound(bool on);
    /// Stops the timer while a menu is in use, without pausing the run. The next step comes a full
    /// interval after the end.
    void setHeld(bool held);
    /// Handles a key press. Returns true if the caller should consume the event.
    bool key(GameKey key);

Q_SIGNALS:
    /// The value of some getter has changed. Emitted once per operation, at its end.
    void changed();

private:
    void schedule();
    void stopTimer();
    void tick();
    void togglePause();
    void play(SoundEffect effect);

    Preferences& preferences_;
    SoundEffects& soundEffects_;
    Step step_;
    Phase phase_ = Phase::fresh;
    SnakeCore::Game game_;
    Pace pace_ = Pace::classic;
    std::int64_t best_;
    bool sound_;
    SnakeCore::HighScores scores_;
    bool storedScoresAreDamaged_;
    QString playerName_;
    Sheet sheet_ = Sheet::none;
    Pace scorePace_ = Pace::classic;
    SnakeCore::UUID runID_;
    Pace runPace_ = Pace::classic;
    bool held_ = false;
    std::unique_ptr<QTimer> timer_;
};
