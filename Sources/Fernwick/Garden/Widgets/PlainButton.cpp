#include "Garden/Widgets/PlainButton.hpp"

#include <QPainter>

#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

// Room for the focus ring, and a larger target to click than the text alone.
constexpr QSize padding(8, 3);
constexpr double ringRadius = 6;

}  // namespace

PlainButton::PlainButton(const QString& text, const QFont& font, QWidget* parent)
    : QuietButton(text, font, padding, parent) {}

void PlainButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(quietColour());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    focusRing().paint(painter,
                      continuousRoundedRect(inset(rect(), FocusRing::width / 2), ringRadius), mint);
}

}  // namespace Garden
