#include "Garden/Widgets/StatusDot.hpp"

#include <QPainter>
#include <algorithm>

namespace Garden {

namespace {

constexpr double diameter = 5;
// Room for the antialiased edge: at a fractional scale the widget starts and ends within a pixel.
constexpr int margin = 1;
constexpr int side = 7;
static_assert(side == diameter + 2 * margin);

}  // namespace

StatusDot::StatusDot(QWidget* parent) : QWidget(parent) {
    StatusDot::setDensity({});
}

void StatusDot::setDensity(const Density& density) {
    scale_ = std::max(1.0, density.scale);
    const int scaledSide = scaled(side, scale_);
    setFixedSize(scaledSide, scaledSide);
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
    const double radius = scale_ * diameter / 2;
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

}  // namespace Garden
