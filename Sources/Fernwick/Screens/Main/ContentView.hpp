#pragma once

#include <QWidget>

#include "Painting/Ground/Backdrop.hpp"
#include "Screens/Main/Arrangement.hpp"

class BoardArea;
class ControlRow;
class HeaderRow;
class HintRow;
class Session;
class SheetLayer;

/// The only screen of the application, as large as the window: header, controls, board and hints
/// on the backdrop, and the sheets over them. It owns the backdrop and decides where
/// the board lies.
class ContentView : public QWidget {
    Q_OBJECT

public:
    explicit ContentView(Session& session, QWidget* parent = nullptr);

    /// The uppermost `height` points are covered; 0 if none are.
    void setBand(int height);
    /// The part that the rows and the board fill, in points.
    [[nodiscard]] QRect contentArea() const;

Q_SIGNALS:
    /// The first frame has been painted.
    void appeared();
    /// A sheet dims what is behind it by black of this opacity. What lies on top
    /// of this widget has to follow.
    void dimmed(double opacity);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    /// Gives the rows and the board their places. Changes nothing that asks for another layout.
    void place();
    /// `area` in a right-to-left layout.
    [[nodiscard]] QRect mirrored(const QRect& area) const;
    void placeBoard();

    bool hasAppeared_ = false;
    // Device pixels per point.
    qreal scale_;
    Painting::Backdrop backdrop_;
    int band_ = 0;
    Arrangement arrangement_;
    HeaderRow* header_;
    ControlRow* controls_;
    BoardArea* boardArea_;
    HintRow* hints_;
    SheetLayer* sheetLayer_;
};
