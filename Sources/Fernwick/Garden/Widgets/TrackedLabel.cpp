#include "Garden/Widgets/TrackedLabel.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Widgets/Accessibility.hpp"

namespace Garden {

namespace {

// Between two lines, in font sizes.
constexpr double lineSpacing = 0.35;

// How far descenders extend below the descent that a font reports: those of the serif font do.
double overhang(const QFont& font) {
    if (font.styleHint() != QFont::Serif) {
        return 0;
    }
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

// `text` in as few lines of at most `width` as possible, which are as even as possible.
QStringList balancedLines(const QString& text, const QFont& font, int width) {
    const auto broken = [&](int atWidth) {
        QStringList lines;
        QTextLayout layout(text, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(atWidth);
            lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
        }
        layout.endLayout();
        return lines;
    };
    const QStringList fewest = broken(width);
    int narrowest = width / static_cast<int>(fewest.size());
    while (broken(narrowest).size() > fewest.size()) {
        ++narrowest;
    }
    return broken(std::min(narrowest, width));
}

}  // namespace

TrackedLabel::TrackedLabel(const QString& text, const QFont& font, const QColor& colour,
                           QWidget* parent)
    : QWidget(parent), text_(text), font_(font), colour_(colour) {
    setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(text_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    fitToText();
}

void TrackedLabel::setText(const QString& text) {
    if (text == text_) {
        return;
    }
    text_ = text;
    setAccessibleName(text_);
    fitToText();
}

void TrackedLabel::wrapAt(int width, Qt::Alignment alignment) {
    if (width != wrapWidth_) {
        wrapWidth_ = width;
        alignment_ = alignment;
        breakLines();
    }
}

void TrackedLabel::setDensity(const Density& density) {
    if (density.scale != scale_) {
        scale_ = density.scale;
        fitToText();
    }
}

void TrackedLabel::fitToText() {
    const QFont sized = scaled(font_, scale_);
    overhang_ = overhang(sized);
    setFont(fittedTo(text_, sized));
    measureExcess();
    breakLines();
}

void TrackedLabel::measureExcess() {
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

void TrackedLabel::breakLines() {
    lines_ = text_.split(u'\n');
    if (wrapWidth_ > 0 && widthOf(text_) > wrapWidth_) {
        lines_ = balancedLines(text_, font(), wrapWidth_);
    }
    updateGeometry();
    update();
}

int TrackedLabel::widthOf(const QString& line) const {
    const double trailing = line.isEmpty() ? 0 : font().letterSpacing();
    return static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(line) - trailing));
}

int TrackedLabel::lineHeight() const {
    const double height = std::ceil(QFontMetricsF(font()).height());
    return static_cast<int>(excess_.above + height + overhang_ + excess_.below);
}

int TrackedLabel::leading() const {
    return scaled(font().pixelSize(), lineSpacing);
}

QSize TrackedLabel::sizeHint() const {
    int widest = 0;
    for (const QString& line : lines_) {
        widest = std::max(widest, widthOf(line));
    }
    const int pitch = lineHeight() + leading();
    return {widest, static_cast<int>(lines_.size()) * pitch - leading()};
}

void TrackedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(legible(colour_));
    painter.setLayoutDirection(layoutDirection());
    const QFontMetricsF metrics(font());
    double top = (height() - sizeHint().height()) / 2.0;
    for (const QString& line : lines_) {
        const int free = width() - widthOf(line);
        // Positioned by hand: right alignment would include the letter spacing after the last
        // letter, and vertical centring would include the ascent and descent of fallback fonts.
        const double start = isRightToLeft() ? free : 0;
        const double left =
            lines_.size() > 1 && alignment_ == Qt::AlignHCenter ? free / 2.0 : start;
        painter.drawText(QPointF(std::max(0.0, left), top + excess_.above + metrics.ascent()),
                         free >= 0 ? line : metrics.elidedText(line, Qt::ElideRight, width()));
        top += lineHeight() + leading();
    }
}

}  // namespace Garden
