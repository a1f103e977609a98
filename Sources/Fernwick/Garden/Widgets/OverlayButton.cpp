#include "Garden/Widgets/OverlayButton.hpp"

#include <QPainter>
#include <cmath>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Icons.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 13;
constexpr QSize padding(25, 15);
constexpr double cornerRadius = 22;
constexpr int arrowSpacing = 8;
// Odd in an even height, so that the shaft fills one row of pixels, at the middle of the letters.
constexpr int arrowSize = 13;

}  // namespace

OverlayButton::OverlayButton(const QString& text, QWidget* parent)
    : QuietButton(text, sans(fontSize, QFont::DemiBold), padding, parent) {}

QSize OverlayButton::sizeHint() const {
    return QuietButton::sizeHint() + QSize(arrowSpacing + arrowSize, 0);
}

void OverlayButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF shape = rect();
    paintFill(painter, continuousRoundedRect(shape, cornerRadius),
              continuousRoundedRect(inset(shape, hoverEdgeInset), cornerRadius),
              continuousRoundedRect(inset(shape, filledRingInset), cornerRadius - filledRingInset));

    const int content = sizeHint().width() - 2 * padding.width();
    const QRectF line(std::floor((shape.width() - content) / 2), 0, content, shape.height());
    painter.setPen(ink);
    painter.setLayoutDirection(layoutDirection());
    // AlignLeft is the leading side in either layout direction.
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    if (isRightToLeft()) {
        painter.setTransform(QTransform(-1, 0, 0, 1, shape.width(), 0), true);
    }
    paintIcon(
        painter, Icon::arrowRight,
        QRectF(line.right() - arrowSize, (shape.height() - arrowSize) / 2, arrowSize, arrowSize),
        ink);
}

}  // namespace Garden
