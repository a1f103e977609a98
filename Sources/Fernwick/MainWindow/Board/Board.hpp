#pragma once

#include <QWidget>
#include <SnakeCore/Game.hpp>
#include <optional>

#include "MainWindow/Board/BoardGeometry.hpp"

class Backdrop;

/// Paints one frame of the game: grid dots, fruit, snake and its eyes, clipped to the rounded frame
/// that `Backdrop` has filled, with the frame's stroke on top. It fits its picture to its parent
/// (`fit(parent->rect())`); the parent places it at that frame's `toAlignedRect()`.
class Board : public QWidget {
    Q_OBJECT

public:
    /// `backdrop` is the ground of the window and has to outlive the board.
    Board(Backdrop& backdrop, QWidget* parent);

    /// The largest board that `space` holds, centred in it; in points.
    [[nodiscard]] static BoardGeometry fit(const QRectF& space);

    /// Shows `game`; repaints what differs from the game shown before.
    void setGame(const SnakeCore::Game& game);
    /// While no run is moving the picture is blurred and dimmed.
    void setIdle(bool idle);
    /// Lays black over the picture, inside the frame's rounded shape; 0 is none, 1 hides it.
    void setScrim(double opacity);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF frameHere() const;
    void announceScore();

    Backdrop& backdrop_;
    std::optional<SnakeCore::Game> game_;
    bool idle_ = false;
    double scrim_ = 0;
};
