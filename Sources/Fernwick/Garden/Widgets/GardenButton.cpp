#include "Garden/Widgets/GardenButton.hpp"

#include <QPainter>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 13;
constexpr QFont::Weight fontWeight = QFont::DemiBold;
constexpr int horizontalPadding = 30;
constexpr int verticalPadding = 13;
// On mint the ring lies inside the fill: dark, and clear of the text.
constexpr double ringInset = 3;

}  // namespace

GardenButton::GardenButton(const QString& text, QWidget* parent) : QuietButton(parent) {
    setText(text);
    setFont(sans(fontSize, fontWeight));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize GardenButton::sizeHint() const {
    return paddedTextSize(horizontalPadding, verticalPadding);
}

void GardenButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF shape = rect();
    painter.fillPath(continuousCapsule(shape),
                     withOpacity(mint, fillOpacity(isEnabled(), isDown())));
    constexpr double edgeInset = hoverEdgeWidth / 2;
    paintHoverEdge(painter,
                   continuousCapsule(shape.adjusted(edgeInset, edgeInset, -edgeInset, -edgeInset)));
    focusRing().paint(
        painter, continuousCapsule(shape.adjusted(ringInset, ringInset, -ringInset, -ringInset)),
        ink);
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

}  // namespace Garden
