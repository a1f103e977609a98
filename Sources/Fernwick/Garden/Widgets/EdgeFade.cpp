#include "Garden/Widgets/EdgeFade.hpp"

#include <QLinearGradient>
#include <QPainter>

namespace Garden {

namespace {

// From transparent at `from` to opaque at `to`.
void fade(QPainter& painter, const QRectF& area, double from, double to) {
    QLinearGradient gradient(0, from, 0, to);
    gradient.setColorAt(0, Qt::transparent);
    gradient.setColorAt(1, Qt::black);
    painter.fillRect(area, gradient);
}

}  // namespace

void EdgeFade::setLengths(int top, int bottom) {
    if (top == top_ && bottom == bottom_) {
        return;
    }
    top_ = top;
    bottom_ = bottom;
    setEnabled(top > 0 || bottom > 0);
    update();
}

void EdgeFade::draw(QPainter* painter) {
    QPoint offset;
    QPixmap picture = sourcePixmap(Qt::LogicalCoordinates, &offset, NoPad);
    {
        QPainter mask(&picture);
        mask.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        const QSizeF size = picture.deviceIndependentSize();
        if (top_ > 0) {
            fade(mask, {0, 0, size.width(), double(top_)}, 0, top_);
        }
        if (bottom_ > 0) {
            const double begin = size.height() - bottom_;
            fade(mask, {0, begin, size.width(), double(bottom_)}, size.height(), begin);
        }
    }
    painter->drawPixmap(offset, picture);
}

}  // namespace Garden
