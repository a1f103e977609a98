#include "Garden/Widgets/TrackedLabel.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

// How far descenders extend below the descent that a font reports: Elstob's "g" does.
double overhang(const QFont& font) {
    QPainterPath deepest;
    deepest.addText(0, 0, font, QStringLiteral("gjpqy"));
    return std::max(0.0,
                    std::ceil(deepest.boundingRect().bottom() - QFontMetricsF(font).descent()));
}

// The tallest and deepest common letters of the script of `text`, so that all labels in it have the
// same height. CJK glyphs all fill the same square.
QString commonLetters(const QString& text) {
    for (const QChar letter : text) {
        if (letter.script() == QChar::Script_Arabic) {
            return QStringLiteral("أإجمة");
        }
        if (letter.script() == QChar::Script_Cyrillic) {
            return QStringLiteral("ЙЩру");
        }
        if (letter.script() == QChar::Script_Devanagari) {
            return QStringLiteral("र्कींुऊ");
        }
    }
    return {};
}

// Latin letters and common punctuation, which fit between the ascent and descent of every font.
bool isLatin(QChar letter) {
    constexpr char16_t lastLatin = 0x24f;
    constexpr char16_t firstPunctuation = 0x2010;
    constexpr char16_t lastPunctuation = 0x2027;
    return letter <= lastLatin || (letter >= firstPunctuation && letter <= lastPunctuation);
}

}  // namespace

TrackedLabel::TrackedLabel(const QString& text, const QFont& font, const QColor& colour,
                           QWidget* parent)
    : QWidget(parent), text_(text), font_(font), colour_(colour), overhang_(overhang(font)) {
    setAccessibleRole(*this, QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    fitToText();
}

void TrackedLabel::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    fitToText();
    updateGeometry();
    update();
}

void TrackedLabel::fitToText() {
    setFont(fittedTo(text_, font_));
    setAccessibleName(text_);
    excess_ = {};
    if (std::ranges::all_of(text_, isLatin)) {
        return;
    }
    // Measure the glyph outlines: font metrics do not account for stacked diacritics.
    QPainterPath letters;
    letters.addText(0, 0, font(), text_ + commonLetters(text_));
    const QRectF ink = letters.boundingRect();
    // Round the metrics down: glyphs are placed on whole pixels, which may shift them by one.
    const QFontMetricsF metrics(font());
    const double above = -ink.top() - std::floor(metrics.ascent());
    const double below = ink.bottom() - std::floor(metrics.descent()) - overhang_;
    excess_ = {std::max(0.0, std::ceil(above)), std::max(0.0, std::ceil(below))};
}

QSize TrackedLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    const double trailing = text_.isEmpty() ? 0 : font().letterSpacing();
    return {
        static_cast<int>(std::ceil(metrics.horizontalAdvance(text_) - trailing)),
        static_cast<int>(excess_.above + std::ceil(metrics.height()) + overhang_ + excess_.below)};
}

void TrackedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(legible(colour_));
    painter.setLayoutDirection(layoutDirection());
    const QFontMetricsF metrics(font());
    const QSize needed = sizeHint();
    const bool fits = width() >= needed.width();
    // Positioned by hand: right alignment would include the letter spacing after the last letter,
    // and vertical centring would include the ascent and descent of fallback fonts.
    const double left = fits && isRightToLeft() ? width() - needed.width() : 0;
    const double top = (height() - needed.height()) / 2.0;
    painter.drawText(QPointF(left, top + excess_.above + metrics.ascent()),
                     fits ? text_ : metrics.elidedText(text_, Qt::ElideRight, width()));
}

}  // namespace Garden
