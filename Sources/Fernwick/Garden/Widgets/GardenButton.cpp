#include "Garden/Widgets/GardenButton.hpp"

#include <QPainter>
#include <cmath>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Icons.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 13;
constexpr QSize capsulePadding(30, 13);
constexpr QSize arrowPadding(25, 15);
constexpr double cornerRadius = 22;
constexpr int arrowSpacing = 8;
// Odd in an even height, so that the shaft fills one row of pixels, at the middle of the letters.
constexpr int fullArrowSize = 13;

constexpr double pressedFill = 0.7;
constexpr double disabledFill = 0.3;
constexpr double hoverVeil = 0.07;
constexpr double ringInset = 3;

}  // namespace

GardenButton::GardenButton(const QString& text, QWidget* parent, Style style)
    : QuietButton(text, sans(fontSize, QFont::DemiBold),
                  style == Style::arrow ? arrowPadding : capsulePadding, parent),
      style_(style) {}

QSize GardenButton::sizeHint() const {
    return QuietButton::sizeHint() + QSize(style_ == Style::arrow ? arrowWidth() : 0, 0);
}

int GardenButton::arrowSize() const {
    return scaled(fullArrowSize, scale());
}

int GardenButton::arrowWidth() const {
    return scaled(arrowSpacing, scale()) + arrowSize();
}

QPainterPath GardenButton::shape(double distance, double radius) const {
    const QRectF place = inset(rect(), distance);
    return style_ == Style::arrow ? continuousRoundedRect(place, radius) : continuousCapsule(place);
}

void GardenButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double enabledOpacity = isDown() ? pressedFill : 1;
    const double radius = cornerRadius * scale();
    painter.fillPath(shape(0, radius),
                     withOpacity(mint, isEnabled() ? enabledOpacity : disabledFill));
    if (hovered() && !isDown()) {
        painter.fillPath(shape(0, radius), withOpacity(Qt::white, hoverVeil));
    }
    focusRing().paint(painter, shape(ringInset, radius - ringInset), ink);
    painter.setPen(ink);
    if (style_ == Style::arrow) {
        paintTextAndArrow(painter);
    } else {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }
}

void GardenButton::paintTextAndArrow(QPainter& painter) const {
    const int content = sizeHint().width() - 2 * padding().width();
    const int arrow = arrowSize();
    const QRectF line(std::floor((width() - content) / 2.0), 0, content, height());
    painter.setLayoutDirection(layoutDirection());
    // AlignLeft is the leading side in either layout direction.
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    if (isRightToLeft()) {
        painter.setTransform(QTransform(-1, 0, 0, 1, width(), 0), true);
    }
    paintIcon(painter, Icon::arrowRight,
              QRectF(line.right() - arrow, (height() - arrow) / 2.0, arrow, arrow), ink);
}

}  // namespace Garden
