#include "Garden/Widgets/QuietButton.hpp"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

constexpr QColor hoveredQuiet = srgb(0.66, 0.80, 0.70);
constexpr double pressedQuiet = 0.7;
constexpr double disabledQuiet = 0.4;
constexpr double ringRadius = 6;

}  // namespace

QuietButton::QuietButton(const QString& text, const QFont& font, QSize padding, QWidget* parent)
    : QAbstractButton(parent), fullFont_(font), fullPadding_(padding) {
    setAccessibleRole(*this, QAccessible::PushButton);
    setText(text);
    setFont(font);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

QSize QuietButton::sizeHint() const {
    const QFontMetricsF metrics(font());
    return QSize(static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))),
                 static_cast<int>(std::ceil(metrics.height()))) +
           2 * padding();
}

void QuietButton::setDensity(const Density& density) {
    density_ = density;
    setFont(scaled(fullFont_, density.scale));
    updateGeometry();
    update();
}

QSize QuietButton::padding() const {
    return {scaled(fullPadding_.width(), density_.air * density_.scale),
            scaled(fullPadding_.height(), density_.scale)};
}

bool QuietButton::hovered() const {
    return isEnabled() && underMouse();
}

QColor QuietButton::quietColour() const {
    if (!isEnabled()) {
        return withOpacity(legible(muted), disabledQuiet);
    }
    if (isDown()) {
        return withOpacity(legible(muted), pressedQuiet);
    }
    return legible(hovered() ? hoveredQuiet : muted);
}

void QuietButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(quietColour());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    focusRing_.paint(painter,
                     continuousRoundedRect(inset(rect(), FocusRing::width / 2), ringRadius), mint);
}

void QuietButton::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn) {
        QAbstractButton::keyPressEvent(event);
    } else if (!event->isAutoRepeat()) {
        click();
    }
}

void QuietButton::focusInEvent(QFocusEvent* event) {
    focusRing_.focusIn(event->reason());
    QAbstractButton::focusInEvent(event);
}

void QuietButton::focusOutEvent(QFocusEvent* event) {
    focusRing_.focusOut(event->reason());
    QAbstractButton::focusOutEvent(event);
}

void QuietButton::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange) {
        setCursor(isEnabled() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
    QAbstractButton::changeEvent(event);
}

}  // namespace Garden
