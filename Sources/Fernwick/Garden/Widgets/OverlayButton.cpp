#include "Garden/Widgets/OverlayButton.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Icons.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 13;
constexpr QFont::Weight fontWeight = QFont::DemiBold;
constexpr int horizontalPadding = 25;
constexpr int verticalPadding = 15;
constexpr double cornerRadius = 22;
constexpr double arrowSpacing = 8;
// Odd in an even height: the shaft then lies on one row of pixels, at the middle of the letters.
constexpr double arrowSize = 13;
constexpr double ringInset = 3;

}  // namespace

OverlayButton::OverlayButton(const QString& text, QWidget* parent) : QuietButton(parent) {
    setText(text);
    setFont(sans(fontSize, fontWeight));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

double OverlayButton::textWidth() const {
    return std::ceil(QFontMetricsF(font()).horizontalAdvance(text()));
}

QSize OverlayButton::sizeHint() const {
    const QSize arrow(static_cast<int>(arrowSpacing + arrowSize), 0);
    return paddedTextSize(horizontalPadding, verticalPadding) + arrow;
}

void OverlayButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = rect();
    painter.fillPath(continuousRoundedRect(shape, cornerRadius),
                     withOpacity(mint, fillOpacity(isEnabled(), isDown())));
    constexpr double edgeInset = hoverEdgeWidth / 2;
    paintHoverEdge(
        painter, continuousRoundedRect(shape.adjusted(edgeInset, edgeInset, -edgeInset, -edgeInset),
                                       cornerRadius));
    focusRing().paint(
        painter,
        continuousRoundedRect(shape.adjusted(ringInset, ringInset, -ringInset, -ringInset),
                              cornerRadius - ringInset),
        ink);

    const double content = textWidth() + arrowSpacing + arrowSize;
    QRectF line = shape;
    line.setLeft(std::floor((shape.width() - content) / 2));
    line.setWidth(content);
    painter.setPen(ink);
    painter.setLayoutDirection(layoutDirection());
    // On the side that lines begin at, whichever it is.
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text());
    if (isRightToLeft()) {
        // The arrow points the way that is read, too.
        painter.setTransform(QTransform(-1, 0, 0, 1, shape.width(), 0), true);
    }
    paintIcon(
        painter, Icon::arrowRight,
        QRectF(line.right() - arrowSize, (shape.height() - arrowSize) / 2, arrowSize, arrowSize),
        ink);
}

}  // namespace Garden
