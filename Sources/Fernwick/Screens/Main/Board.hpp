#pragma once

#include <QWidget>
#include <memory>

#include "Painting/Board/BoardGeometry.hpp"
#include "Painting/Board/BoardPicture.hpp"
#include "Painting/Ground/FrameEdge.hpp"
#include "SnakeCore/Game.hpp"

class Backdrop;

/// Paints one frame of a game, at first of a fresh run: grid dots, fruit, snake and its eyes,
/// clipped to the rounded frame that `Backdrop` has filled and stroked. It fits its picture to its
/// parent (`fit(parent->rect())`), which places it at that frame's `toAlignedRect()`.
class Board : public QWidget {
    Q_OBJECT

public:
    /// `backdrop` is the ground of the window and has to outlive the board.
    Board(Backdrop& backdrop, QWidget* parent);
    ~Board() override;

    /// The largest board that `space` holds, centred in it; in points.
    [[nodiscard]] static BoardGeometry fit(const QRectF& space);

    /// Shows `game`; repaints what differs from the game shown before, nothing when they are equal.
    void setGame(const SnakeCore::Game& game);
    /// While no run is moving the picture is blurred and dimmed.
    void setIdle(bool idle);
    /// Lays black over the picture, inside the frame's rounded shape; 0 is none, 1 hides it.
    void setScrim(double opacity);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] BoardGeometry geometryInWindow() const;
    [[nodiscard]] PixelGrid grid() const;
    [[nodiscard]] QRegion toPoints(const QRegion& pixels) const;
    void prepareEdge();
    void preparePicture();
    void announceScore();

    Backdrop& backdrop_;
    SnakeCore::Game game_;
    bool idle_ = false;
    double scrim_ = 0;
    std::unique_ptr<BoardPicture> picture_;
    // The picture at rest; null until it is asked for.
    QImage idlePicture_;
    FrameEdge edge_;
    // What the edge was made for: a state of the ground and the place of the board in it.
    int edgeGround_ = 0;
    QRect edgePlace_;
};
