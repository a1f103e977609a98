#pragma once

#include <QWidget>

class Backdrop;
class Board;
class GameOverView;
class Overlay;
class Session;

/// The space of the main screen that the board is fitted into, with the card that lies over the
/// board while no run is moving.
class BoardArea : public QWidget {
    Q_OBJECT

public:
    BoardArea(Session& session, Backdrop& backdrop, QWidget* parent = nullptr);

    /// Where the board's frame stands, in points, inside this widget.
    [[nodiscard]] QRectF frame() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void refresh();

    Session& session_;
    Board* board_;
    Overlay* overlay_;
    GameOverView* gameOver_;
};
