#include "Garden/Widgets/GardenButton.hpp"

#include <QPainter>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 13;
constexpr QSize padding(30, 13);

}  // namespace

GardenButton::GardenButton(const QString& text, QWidget* parent)
    : QuietButton(text, sans(fontSize, QFont::DemiBold), padding, parent) {}

void GardenButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto capsule = [this](double distance) {
        return continuousCapsule(inset(rect(), distance));
    };
    paintFill(painter, capsule(0), capsule(hoverEdgeInset), capsule(filledRingInset));
    painter.setPen(ink);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

}  // namespace Garden
