#include "Window/ClosedMenu.hpp"

#include <QPainter>

#include "Garden/Look/Motion.hpp"

ClosedMenu::ClosedMenu(const QPixmap& picture, const QPoint& position, double opacity,
                       QWidget& window)
    : QFocusFrame(&window), picture_(picture), presence_(this) {
    setGeometry(QRect(position, picture.deviceIndependentSize().toSize()));
    presence_.setDuration(Garden::menuDuration);
    presence_.setStartValue(opacity);
    presence_.setEndValue(0.0);
    presence_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&presence_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&presence_, &QVariantAnimation::finished, this, &QObject::deleteLater);
    presence_.start();
    show();
    // At once, so that no frame is shown without the menu.
    repaint();
}

bool ClosedMenu::removeFrom(QWidget& window) {
    const auto closed = window.findChildren<ClosedMenu*>();
    qDeleteAll(closed);
    return !closed.isEmpty();
}

void ClosedMenu::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setOpacity(presence_.currentValue().toDouble());
    painter.drawPixmap(0, 0, picture_);
}
