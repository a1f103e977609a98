#include "Garden/Widgets/RiseEffect.hpp"

#include <QPainter>

namespace Garden {

void RiseEffect::setPresence(double presence) {
    presence_ = presence;
    update();
}

QRectF RiseEffect::boundingRectFor(const QRectF& source) const {
    return source.adjusted(0, 0, 0, rise);
}

void RiseEffect::draw(QPainter* painter) {
    QPoint offset;
    const QPixmap source = sourcePixmap(Qt::LogicalCoordinates, &offset, NoPad);
    painter->setOpacity(presence_);
    painter->drawPixmap(offset + QPointF(0, shift(presence_)), source);
}

}  // namespace Garden
