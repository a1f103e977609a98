#include "Garden/Widgets/ChoiceButton.hpp"

#include <QKeyEvent>
#include <QPainter>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

constexpr double fontSize = 12;
constexpr QSize fullPadding(17, 9);
constexpr double currentOpacity = 0.16;
constexpr double hoverOpacity = 0.05;
constexpr double disabledOpacity = 0.55;

}  // namespace

ChoiceButton::ChoiceButton(const QString& text, QWidget* parent)
    : QuietButton(text, sans(fontSize, QFont::Medium), fullPadding, parent) {
    setAccessibleRole(*this, QAccessible::RadioButton);
    setCheckable(true);
    //: Read aloud after the name of a speed.
    setAccessibleDescription(tr("Press Return to choose."));
}

void ChoiceButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        const bool forward = (event->key() == Qt::Key_Right) != isRightToLeft();
        Q_EMIT arrowPressed(forward ? 1 : -1);
    } else {
        QuietButton::keyPressEvent(event);
    }
}

void ChoiceButton::nextCheckState() {}

void ChoiceButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : disabledOpacity);
    const QRectF shape = rect();
    if (isChecked()) {
        painter.fillPath(continuousCapsule(shape), withOpacity(mint, currentOpacity));
    } else if (hovered()) {
        painter.fillPath(continuousCapsule(shape), withOpacity(mint, hoverOpacity));
    }
    painter.setPen(legible(isChecked() ? mint : muted));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    focusRing().paint(painter, continuousCapsule(inset(shape, FocusRing::width / 2)), mint);
}

}  // namespace Garden
