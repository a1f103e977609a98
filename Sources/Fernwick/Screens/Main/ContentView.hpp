#pragma once

#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"

class BoardArea;
class Session;
class SheetLayer;

/// The only screen of the application, as large as the window: header, controls, board and hints
/// on the backdrop, and the sheet of high scores over them. It owns the backdrop and decides where
/// the board lies.
class ContentView : public QWidget {
    Q_OBJECT

public:
    /// Leaves `topPadding` points free at the top.
    ContentView(Session& session, int topPadding, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The first frame has been painted.
    void appeared();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeBoard();

    bool hasAppeared_ = false;
    // Device pixels per point.
    qreal scale_ = 1;
    Painting::Backdrop backdrop_;
    BoardArea* boardArea_;
    SheetLayer* sheetLayer_ = nullptr;
};
