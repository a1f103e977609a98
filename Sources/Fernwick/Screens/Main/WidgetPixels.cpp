#include "Screens/Main/WidgetPixels.hpp"

#include <cmath>

QRect WidgetPixels::inWindow(const QRect& geometry, qreal scale) {
    return QRectF(QPointF(geometry.topLeft()) * scale, QSizeF(geometry.size()) * scale)
        .toAlignedRect();
}

WidgetPixels::WidgetPixels(QPainter& painter, const QRect& geometry, qreal scale) {
    const QRect pixels = inWindow(geometry, scale);
    const QTransform toDevice = painter.deviceTransform();
    // The widget's top left pixel on the device: the window, or an image of just the widget.
    const QPointF first =
        toDevice.map(QPointF()) - QPointF(geometry.topLeft()) * scale + pixels.topLeft();
    painter.setTransform(QTransform::fromTranslate(std::round(first.x()), std::round(first.y())) *
                         toDevice.inverted());
    toPixels_ = toDevice * QTransform::fromTranslate(-first.x(), -first.y());
    bounds_ = {QPoint(), pixels.size()};
}

QRect WidgetPixels::of(const QRect& points) const {
    return toPixels_.mapRect(QRectF(points)).toAlignedRect() & bounds_;
}
