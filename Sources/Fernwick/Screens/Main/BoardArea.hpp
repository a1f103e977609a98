#pragma once

#include <QWidget>

#include "Painting/Board/BoardGeometry.hpp"

class Board;
class GameOverView;
class Overlay;
class Session;

namespace Painting {
class Backdrop;
}

/// The main screen's space for the board, with the board in its centre and, while the snake does
/// not move, a card over it.
class BoardArea : public QWidget {
    Q_OBJECT

public:
    BoardArea(Session& session, Painting::Backdrop& backdrop, QWidget* parent = nullptr);

    /// Places the board; `inArea` is in points of this widget. `origin` is this widget's position
    /// in the window, in points; `devicePixelRatio` is device pixels per point.
    void placeBoard(const Painting::BoardGeometry& inArea, const QPoint& origin,
                    qreal devicePixelRatio);
    /// The board's frame in points of the window.
    [[nodiscard]] const QRectF& frame() const { return frame_; }

Q_SIGNALS:
    /// The layout has moved or resized this widget.
    void placed();

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();
    void createGameOver();

    Session& session_;
    QRectF frame_;
    Board* board_;
    Overlay* overlay_;
    // Null until the first run ends.
    GameOverView* gameOver_ = nullptr;
};
