#pragma once

#include <QWidget>

class ScoreRows;
class Session;

namespace Garden {
class TrackedLabel;
}

/// The game-over card once the name is settled: the ten best of the run's pace, the new entry
/// picked out after a save, and "Play again".
class SavedBoard : public QWidget {
    Q_OBJECT

public:
    explicit SavedBoard(Session& session, QWidget* parent = nullptr);

    void refresh();

    /// Takes the title away, so that the next one is news again.
    void clear();

private:
    Session& session_;
    Garden::TrackedLabel* title_;
    ScoreRows* rows_;
};
