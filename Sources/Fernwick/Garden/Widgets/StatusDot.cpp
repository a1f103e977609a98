#include "Garden/Widgets/StatusDot.hpp"

#include <QPainter>

namespace Garden {

namespace {

constexpr double diameter = 5;
// Room for the antialiased edge: at a fractional scale the widget starts and ends within a pixel.
constexpr int margin = 1;
constexpr int side = 7;
static_assert(side == diameter + 2 * margin);

}  // namespace

StatusDot::StatusDot(QWidget* parent) : QWidget(parent) {
    setFixedSize(side, side);
}

void StatusDot::setColour(const QColor& colour) {
    if (colour != colour_) {
        colour_ = colour;
        update();
    }
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    painter.drawEllipse(QRectF(rect()).center(), diameter / 2, diameter / 2);
}

}  // namespace Garden
