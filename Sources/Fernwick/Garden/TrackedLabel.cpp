#include "Garden/TrackedLabel.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "Garden/Accessibility.hpp"
#include "Garden/Contrast.hpp"
#include "Garden/Fonts.hpp"

namespace Garden {

namespace {

// How far the deepest letters of a font reach below the line that it claims: an old style serif
// may promise less room than its g takes.
double overhang(const QFont& font) {
    QPainterPath deepest;
    deepest.addText(0, 0, font, QStringLiteral("gjpqy"));
    return std::max(0.0,
                    std::ceil(deepest.boundingRect().bottom() - QFontMetricsF(font).descent()));
}

}  // namespace

TrackedLabel::TrackedLabel(const QString& text, const QFont& font, const QColor& colour,
                           QWidget* parent)
    : QWidget(parent), text_(text), font_(font), colour_(colour), overhang_(overhang(font)) {
    installAccessibility();
    setFont(fittedTo(text, font_));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(text);
}

void TrackedLabel::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    setFont(fittedTo(text, font_));
    setAccessibleName(text);
    updateGeometry();
    update();
}

void TrackedLabel::setElided(bool elided) {
    elided_ = elided;
    updateGeometry();
}

TrackedLabel::Excess TrackedLabel::excess() const {
    const QFontMetricsF metrics(font());
    const QRectF ink = metrics.tightBoundingRect(text_);
    return {std::max(0.0, std::ceil(-ink.top() - metrics.ascent())),
            std::max(0.0, std::ceil(ink.bottom() - metrics.descent() - overhang_))};
}

QSize TrackedLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    const double trailing = text_.isEmpty() ? 0 : font().letterSpacing();
    const Excess more = excess();
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text_) - trailing)),
            static_cast<int>(more.above + std::ceil(metrics.height()) + overhang_ + more.below)};
}

QSize TrackedLabel::minimumSizeHint() const {
    const QSize whole = sizeHint();
    return elided_ ? QSize(0, whole.height()) : whole;
}

void TrackedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(legible(colour_));
    const QFontMetricsF metrics(font());
    const QSize needed = sizeHint();
    const bool fits = width() >= needed.width();
    // Neither by alignment: the space after the last letter would push the first one out; nor by
    // the height of the line, which a helping face may have stretched to one side.
    const double left = fits && isRightToLeft() ? width() - needed.width() : 0;
    const double top = (height() - needed.height()) / 2.0;
    painter.drawText(QPointF(left, top + excess().above + metrics.ascent()),
                     fits ? text_ : metrics.elidedText(text_, Qt::ElideRight, width()));
}

}  // namespace Garden
