#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

class NameEntry;
class SavedBoard;
class Session;

namespace Garden {
class TrackedLabel;
}

/// The card over the board of an ended run: how it ended and what it scored, then the name entry
/// or, once that is done, the top ten. It has no background of its own: the board is dimmed by
/// `scrimOpacity`.
class GameOverView : public QWidget {
    Q_OBJECT

public:
    /// Of the black over the board.
    static constexpr double scrimOpacity = 0.65;

    explicit GameOverView(Session& session, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void fit();

    Session& session_;
    Garden::TrackedLabel* headline_;
    Garden::TrackedLabel* result_;
    NameEntry* nameEntry_;
    SavedBoard* savedBoard_;
    Garden::ContentDensity* density_ = nullptr;
};
