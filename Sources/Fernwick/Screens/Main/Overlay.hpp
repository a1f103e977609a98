#pragma once

#include <QWidget>

class Session;

namespace Garden {
class IconView;
class GardenButton;
class TrackedLabel;
}  // namespace Garden

/// The start and pause card over the board: a symbol, a title, a line and one button. It has no
/// background of its own: the board is dimmed by `scrimOpacity`.
class Overlay : public QWidget {
    Q_OBJECT

public:
    /// Of the black over the board.
    static constexpr double scrimOpacity = 0.48;

    explicit Overlay(Session& session, QWidget* parent = nullptr);

private:
    void refresh();

    Session& session_;
    Garden::IconView* symbol_;
    Garden::TrackedLabel* title_;
    Garden::TrackedLabel* line_;
    Garden::GardenButton* button_;
};
