#pragma once

#include <QWidget>
#include <optional>

#include "Painting/Board/BoardGeometry.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Board/IdlePicture.hpp"
#include "Painting/Ground/Backdrop.hpp"
#include "Painting/Ground/FrameEdge.hpp"
#include "SnakeCore/Game.hpp"

/// Paints a game: dots, fruit, snake and eyes, clipped to the rounded frame whose fill and stroke
/// the backdrop paints.
class Board : public QWidget {
    Q_OBJECT

public:
    /// `backdrop` has to outlive the board.
    Board(Painting::Backdrop& backdrop, const SnakeCore::Game& game, QWidget* parent);

    /// Sets the board's frame and this widget's geometry in the window, both in points, and the
    /// device pixels per point. The caller has fitted the backdrop to the same frame; the widget's
    /// geometry is the frame's toAlignedRect().
    void place(const Painting::BoardGeometry& inWindow, const QRect& widget,
               qreal devicePixelRatio);

    /// Shows `game`. Repaints only the differences from the game shown before.
    void setGame(const SnakeCore::Game& game);
    /// Blurs and dims the picture, for the time when the snake does not move.
    void setIdle(bool idle);
    /// Draws black of this opacity, from 0 to 1, over the picture inside the rounded frame.
    void setScrim(double opacity);

    /// Whether the sharp picture has been painted. It is not needed before the first run.
    [[nodiscard]] bool hasSharpPicture() const { return picture_.has_value(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] Painting::PixelGrid grid() const;
    [[nodiscard]] QRegion toPoints(const QRegion& pixels) const;
    void prepareEdge();
    void resetIdlePicture();
    void preparePicture();
    void announceScore();

    Painting::Backdrop& backdrop_;
    SnakeCore::Game game_;
    Painting::BoardGeometry inWindow_;
    QRect widget_;
    qreal scale_ = 1;
    bool idle_ = false;
    double scrim_ = 0;
    // Made when they are needed: each takes as long as the rest of a frame, or longer.
    std::optional<Painting::BoardPicture> picture_;
    std::optional<Painting::IdlePicture> idlePicture_;
    // Null until the whole board is painted for a second time, as in the animation of a card or of
    // the sheet. At the start it would be the largest allocation next to the window.
    QImage enlarged_;
    Painting::FrameEdge edge_;
    // The backdrop's revision that the edge was made from.
    int edgeRevision_ = 0;
};
