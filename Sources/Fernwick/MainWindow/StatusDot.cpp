#include "MainWindow/StatusDot.hpp"

#include <QPainter>

namespace {

constexpr int diameter = 5;

}  // namespace

StatusDot::StatusDot(QWidget* parent) : QWidget(parent) {
    setFixedSize(diameter, diameter);
}

void StatusDot::setColor(const QColor& color) {
    if (color != color_) {
        color_ = color;
        update();
    }
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color_);
    painter.drawEllipse(rect());
}
