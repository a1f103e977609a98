#pragma once

#include <QWidget>

class NameEntry;
class SavedBoard;
class Session;

namespace Garden {
class TrackedLabel;
}

/// The card over the board of an ended run: how it ended and what it scored, then the name entry
/// or the board of the run's pace. It has no background; whoever shows it dims the board.
class GameOverView : public QWidget {
    Q_OBJECT

public:
    /// How dark the black over the board is.
    static constexpr double scrimOpacity = 0.65;

    explicit GameOverView(Session& session, QWidget* parent = nullptr);

private:
    void refresh();

    Session& session_;
    Garden::TrackedLabel* headline_;
    Garden::TrackedLabel* result_;
    NameEntry* nameEntry_;
    SavedBoard* savedBoard_;
};
