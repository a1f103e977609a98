#include "Garden/Widgets/IconView.hpp"

#include <QPainter>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

IconView::IconView(Icon icon, double size, const QColor& colour, QWidget* parent)
    : QWidget(parent), icon_(icon), fullSize_(size), size_(size), colour_(colour) {
    setAccessibleRole(*this, QAccessible::Graphic);
    IconView::setDensity({});
}

void IconView::setDensity(const Density& density) {
    size_ = fullSize_ * density.scale;
    const int side = static_cast<int>(std::ceil(size_));
    setFixedSize(side, side);
}

void IconView::setIcon(Icon icon) {
    if (icon != icon_) {
        icon_ = icon;
        update();
    }
}

void IconView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintIcon(painter, icon_, QRectF(0, 0, size_, size_), legible(colour_));
}

}  // namespace Garden
