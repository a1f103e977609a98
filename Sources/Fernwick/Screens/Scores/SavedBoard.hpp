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

    /// Clears the title, so that the next one is announced to screen readers as a change, and the
    /// list, which is scrolled anew then.
    void clear();

private:
    Session& session_;
    Garden::TrackedLabel* title_;
    ScoreRows* rows_;
};
