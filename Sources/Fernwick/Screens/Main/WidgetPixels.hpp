#pragma once

#include <QPainter>
#include <QRect>
#include <QTransform>
#include <QWidget>

/// The pixels of a widget, whatever the scale of its window: whole ones, counted from the first
/// pixel that the widget touches.
class WidgetPixels {
public:
    /// Where they lie among those of the window.
    [[nodiscard]] static QRect inWindow(const QWidget& widget);

    /// Makes the coordinates of `painter`, at the beginning of a paint event of `widget`, those of
    /// its pixels.
    WidgetPixels(QPainter& painter, const QWidget& widget);

    /// The pixels that a rectangle of the widget, in points, touches.
    [[nodiscard]] QRect of(const QRect& points) const;

private:
    QRect bounds_;
    QTransform toPixels_;
};
