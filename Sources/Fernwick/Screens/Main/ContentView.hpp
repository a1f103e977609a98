#pragma once

#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"

class BoardArea;
class Session;
class SheetLayer;

/// The main screen: header, controls, board and hints on the backdrop, with the high-scores sheet
/// above them.
class ContentView : public QWidget {
    Q_OBJECT

public:
    /// `topPadding`, in points, is left free above the header.
    ContentView(Session& session, int topPadding, QWidget* parent);

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
