#include "Garden/TrackedLabel.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "Garden/Accessibility.hpp"

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
    : QWidget(parent), text_(text), colour_(colour), overhang_(overhang(font)) {
    installAccessibility();
    setFont(font);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(text);
}

void TrackedLabel::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

void TrackedLabel::setElided(bool elided) {
    elided_ = elided;
    updateGeometry();
}

QSize TrackedLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    const double trailing = text_.isEmpty() ? 0 : font().letterSpacing();
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text_) - trailing)),
            static_cast<int>(std::ceil(metrics.height()) + overhang_)};
}

QSize TrackedLabel::minimumSizeHint() const {
    const QSize whole = sizeHint();
    return elided_ ? QSize(0, whole.height()) : whole;
}

void TrackedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(colour_);
    const QFontMetricsF metrics(font());
    const bool fits = width() >= sizeHint().width();
    painter.drawText(QRectF(rect()).adjusted(0, 0, 0, -overhang_),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                     fits ? text_ : metrics.elidedText(text_, Qt::ElideRight, width()));
}

}  // namespace Garden
