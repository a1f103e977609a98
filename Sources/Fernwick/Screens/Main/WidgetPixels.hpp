#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>

/// Paints a widget in device pixels, at any scale of the screen. Pixels are counted from the top
/// left one that the widget touches. `place` is the widget in its window, in points; `scale` is
/// device pixels per point.
class WidgetPixels {
public:
    /// The widget's pixels among those of the window.
    [[nodiscard]] static QRect inWindow(const QRect& place, qreal scale);

    /// Sets up `painter`, at the start of a paint event, so that its units are the widget's pixels.
    WidgetPixels(QPainter& painter, const QRect& place, qreal scale);

    /// The pixels that a rectangle of the widget, in points, touches.
    [[nodiscard]] QRect of(const QRect& points) const;

private:
    QRect bounds_;
    QTransform toPixels_;
};
