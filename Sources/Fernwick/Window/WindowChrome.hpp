#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <optional>

class QMouseEvent;
class QWidget;
class QWindow;

/// Moves and resizes a window without a title bar: its top band drags it, a double click there
/// maximises, its edges resize. Does nothing in full screen.
class WindowChrome : public QObject {
    Q_OBJECT

public:
    /// `window` must have been created (it has a window handle); `bandHeight` is in points.
    WindowChrome(QWidget& window, int bandHeight);

    /// The edges a press at `position` (points, in the window) takes hold of; none in full screen,
    /// when maximised or away from the edges.
    [[nodiscard]] Qt::Edges edgesAt(const QPoint& position) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool isBand(const QPoint& position) const;
    void showCursorFor(const QPoint& position);
    bool press(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);

    QWidget& window_;
    QPointer<QWindow> handle_;
    int bandHeight_;
    Qt::Edges hovered_;
    // Where the band or an edge has been taken hold of, in points.
    std::optional<QPoint> held_;
};
