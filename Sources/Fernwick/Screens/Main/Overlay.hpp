#pragma once

#include <QWidget>

#include "Garden/Widgets/ContentDensity.hpp"

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

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fit();
    void refresh();

    Session& session_;
    Garden::IconView* symbol_;
    Garden::TrackedLabel* title_;
    Garden::TrackedLabel* line_;
    Garden::GardenButton* button_;
    Garden::TrackedLabel* hint_;
    Garden::ContentDensity* density_ = nullptr;
};
