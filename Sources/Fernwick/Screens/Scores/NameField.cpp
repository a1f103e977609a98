#include "Screens/Scores/NameField.hpp"

#include <QPainter>
#include <QPainterPath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"

namespace {

constexpr double fontSize = 18;
constexpr int padding = 14;
// QLineEdit itself adds two points on both sides of the text.
constexpr int lineEditMargin = 2;
constexpr double cornerRadius = 10;
constexpr double plateOpacity = 0.07;
constexpr double edgeOpacity = 0.4;
constexpr double edgeWidth = 1;
constexpr double placeholderOpacity = 0.25;
constexpr double selectionOpacity = 0.3;

}  // namespace

NameField::NameField(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setFont(Garden::sans(fontSize, QFont::Normal));
    setTextMargins(padding - lineEditMargin, 0, padding - lineEditMargin, 0);

    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, Garden::primaryText);
    colours.setColor(QPalette::Highlight, Garden::withOpacity(Garden::mint, selectionOpacity));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colours);
    setPlaceholderColour();
    connect(&Garden::Contrast::shared(), &Garden::Contrast::changed, this,
            &NameField::setPlaceholderColour);
}

void NameField::setPlaceholderColour() {
    QPalette colours = palette();
    // Dimmer than a typed name, even in high contrast.
    colours.setColor(QPalette::PlaceholderText,
                     Garden::Contrast::shared().isHigh()
                         ? Garden::legible(Garden::muted)
                         : Garden::withOpacity(Qt::white, placeholderOpacity));
    setPalette(colours);
}

QSize NameField::sizeHint() const {
    return {QLineEdit::sizeHint().width(), fontMetrics().height() + 2 * padding};
}

void NameField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPainterPath shape =
            Garden::continuousRoundedRect(Garden::inset(rect(), edgeWidth / 2), cornerRadius);
        painter.fillPath(shape, Garden::withOpacity(Qt::white, plateOpacity));
        painter.strokePath(
            shape,
            QPen(Garden::legible(Garden::withOpacity(Garden::mint, edgeOpacity)), edgeWidth));
    }
    QLineEdit::paintEvent(event);
}
