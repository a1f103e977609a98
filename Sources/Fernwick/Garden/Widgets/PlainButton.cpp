#include "Garden/Widgets/PlainButton.hpp"

#include <QPainter>

#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

// Room for the focus ring, and a kinder target for the pointer than the bare letters.
constexpr int horizontalPadding = 8;
constexpr int verticalPadding = 3;
constexpr double ringRadius = 6;

}  // namespace

PlainButton::PlainButton(const QString& text, const QFont& font, QWidget* parent)
    : QuietButton(parent) {
    setText(text);
    setFont(font);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize PlainButton::sizeHint() const {
    return paddedTextSize(horizontalPadding, verticalPadding);
}

void PlainButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(quietColour());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    constexpr double inset = FocusRing::width / 2;
    focusRing().paint(
        painter,
        continuousRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius),
        mint);
}

}  // namespace Garden
