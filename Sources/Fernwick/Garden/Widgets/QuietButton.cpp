#include "Garden/Widgets/QuietButton.hpp"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

constexpr double restingFill = 1;
constexpr double pressedFill = 0.7;
constexpr double disabledFill = 0.3;

constexpr QColor hoveredQuiet = srgb(0.66, 0.80, 0.70);
constexpr double pressedQuiet = 0.7;
constexpr double disabledQuiet = 0.4;

// The fill itself speaks of pressed and disabled alone.
constexpr double hoverEdgeOpacity = 0.7;

}  // namespace

QuietButton::QuietButton(QWidget* parent) : QAbstractButton(parent) {
    installAccessibility();
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

bool QuietButton::hovered() const {
    return isEnabled() && underMouse();
}

QSize QuietButton::paddedTextSize(int horizontalPadding, int verticalPadding) const {
    const QFontMetricsF metrics(font());
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))) + 2 * horizontalPadding,
            static_cast<int>(std::ceil(metrics.height())) + 2 * verticalPadding};
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

void QuietButton::paintHoverEdge(QPainter& painter, const QPainterPath& outline) const {
    if (hovered()) {
        painter.strokePath(outline, QPen(withOpacity(Qt::white, hoverEdgeOpacity), hoverEdgeWidth));
    }
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

double fillOpacity(bool enabled, bool pressed) {
    if (!enabled) {
        return disabledFill;
    }
    return pressed ? pressedFill : restingFill;
}

}  // namespace Garden
