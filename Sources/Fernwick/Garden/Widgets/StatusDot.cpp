#include "Garden/Widgets/StatusDot.hpp"

#include <QPainter>

namespace Garden {

namespace {

constexpr int diameter = 5;

}  // namespace

StatusDot::StatusDot(QWidget* parent) : QWidget(parent) {
    setFixedSize(diameter, diameter);
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
    painter.drawEllipse(rect());
}

}  // namespace Garden
