#include "Screens/Main/WidgetPixels.hpp"

#include <cmath>

namespace {

QPointF cornerInWindow(const QWidget& widget) {
    return QPointF(widget.mapTo(widget.window(), QPoint())) * widget.devicePixelRatioF();
}

}  // namespace

QRect WidgetPixels::inWindow(const QWidget& widget) {
    return QRectF(cornerInWindow(widget), QSizeF(widget.size()) * widget.devicePixelRatioF())
        .toAlignedRect();
}

WidgetPixels::WidgetPixels(QPainter& painter, const QWidget& widget) {
    const QTransform toDevice = painter.deviceTransform();
    const QRect place = inWindow(widget);
    const QPointF first = toDevice.map(QPointF()) - cornerInWindow(widget) + place.topLeft();
    painter.setTransform(QTransform::fromTranslate(std::round(first.x()), std::round(first.y())) *
                         toDevice.inverted());
    toPixels_ = toDevice * QTransform::fromTranslate(-first.x(), -first.y());
    bounds_ = {QPoint(), place.size()};
}

QRect WidgetPixels::of(const QRect& points) const {
    return toPixels_.mapRect(QRectF(points)).toAlignedRect() & bounds_;
}
