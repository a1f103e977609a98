#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <optional>

class QMouseEvent;
class QWidget;
class QWindow;
class WindowFrame;

/// Moves and resizes a frameless window: its top band drags it, a double click there maximises it,
/// its edges resize it. Does nothing in full screen.
class WindowChrome : public QObject {
    Q_OBJECT

public:
    /// `window` must have a native handle; `bandHeight` is in points.
    WindowChrome(QWidget& window, const WindowFrame& frame, int bandHeight);

    /// The edges that a press at `position` (in points, in the window) would resize; none in full
    /// screen, when maximised, or away from the edges.
    [[nodiscard]] Qt::Edges edgesAt(const QPoint& position) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The player is about to resize the window by one of its edges.
    void resizeBegins();

private:
    [[nodiscard]] bool isBand(const QPoint& position) const;
    void showCursorFor(const QPoint& position);
    bool press(const QMouseEvent& event);
    bool drag(const QMouseEvent& event);

    QWidget& window_;
    const WindowFrame& frame_;
    QPointer<QWindow> handle_;
    int bandHeight_;
    Qt::Edges hovered_;
    // The position of a mouse press on the band or an edge, in points.
    std::optional<QPoint> held_;
};
