#pragma once

#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"

class BoardArea;
class Session;
class SheetLayer;

/// The one screen of the application: header, controls, board and hints on the garden's backdrop,
/// and the sheet of high scores over them. Every element is computed from the session.
class ContentView : public QWidget {
    Q_OBJECT

public:
    explicit ContentView(Session& session, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The first frame has been painted.
    void appeared();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool hasAppeared_ = false;
    Backdrop backdrop_;
    BoardArea* boardArea_;
    SheetLayer* sheetLayer_ = nullptr;
};
