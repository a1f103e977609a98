#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>

/// Paints a widget in device pixels at any device pixel ratio. The origin is the top left pixel
/// that the widget touches. `geometry` is the widget's rectangle in its window, in points; `scale`
/// is the number of device pixels per point.
class WidgetPixels {
public:
    /// The widget's rectangle in the window, in device pixels.
    [[nodiscard]] static QRect inWindow(const QRect& geometry, qreal scale);

    /// Sets the transform of `painter` to the widget's pixels. Call it at the start of a paint
    /// event.
    WidgetPixels(QPainter& painter, const QRect& geometry, qreal scale);

    /// The pixels that `points`, a rectangle in the widget's points, touches.
    [[nodiscard]] QRect of(const QRect& points) const;

private:
    QRect bounds_;
    QTransform toPixels_;
};
