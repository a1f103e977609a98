#pragma once

#include <QWidget>

class ScoreRows;
class Session;

namespace Garden {
class TrackedLabel;
}

/// The game-over card after the name was saved or skipped: the top ten of the run's pace, with the
/// new entry highlighted after a save, and "Play again".
class SavedBoard : public QWidget {
    Q_OBJECT

public:
    explicit SavedBoard(Session& session, QWidget* parent = nullptr);

    void refresh();

    /// Clears the list, so that the next one is scrolled anew.
    void clear();
    /// Has a screen reader say the title, the new entry if it is in the list, and how to go on.
    void announce();

private:
    Session& session_;
    Garden::TrackedLabel* title_;
    ScoreRows* rows_;
    Garden::TrackedLabel* hint_;
};
