#include "Screens/Scores/NameField.hpp"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QValidator>
#include <algorithm>
#include <cmath>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Screens/Scores/NameText.hpp"
#include "SnakeCore/Graphemes.hpp"
#include "SnakeCore/HighScores.hpp"

namespace {

constexpr double fontSize = 18;
constexpr int lineHeight = 22;
constexpr int fullPadding = 14;
// QLineEdit itself adds two points on both sides of the text.
constexpr int lineEditMargin = 2;
constexpr double cornerRadius = 10;
constexpr double plateOpacity = 0.07;
constexpr double edgeOpacity = 0.4;
constexpr double edgeWidth = 1;
constexpr double placeholderOpacity = 0.25;
constexpr double selectionOpacity = 0.3;
constexpr double caretWidth = 1.5;
// Between the caret and the placeholder.
constexpr int caretClearance = 2;
// QLineEdit::cursorRect() begins this far before the caret.
constexpr int cursorRectMargin = 5;

QString firstCharacters(const QString& text) {
    const std::string utf8 = text.toStdString();
    const std::string_view kept =
        SnakeCore::firstCharacters(utf8, SnakeCore::HighScores::longestName);
    return kept.size() == utf8.size()
               ? text
               : QString::fromUtf8(kept.data(), static_cast<qsizetype>(kept.size()));
}

/// Shortens the text to the longest name. QLineEdit asks its validator before it lays out a text.
class LongestName : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override {
        text = firstCharacters(boundedNameText(text));
        cursor = std::min(cursor, static_cast<int>(text.size()));
        return Acceptable;
    }
};

/// The attributes of the event with a caret of no length, which hides that of QLineEdit: it inverts
/// what it covers, whatever the palette, and at fractional scales has a width even where the style
/// says 0.
QList<QInputMethodEvent::Attribute> withoutCaret(const QInputMethodEvent& event) {
    auto attributes = event.attributes();
    int place = static_cast<int>(event.preeditString().size());
    for (const auto& attribute : event.attributes()) {
        if (attribute.type == QInputMethodEvent::Cursor) {
            place = attribute.start;
        }
    }
    attributes.append({QInputMethodEvent::Cursor, place, 0});
    return attributes;
}

}  // namespace

NameField::NameField(QWidget* parent) : QLineEdit(parent) {
    setValidator(new LongestName(this));
    // For text of an input method, which QLineEdit lays out before it asks the validator. It may
    // cut that text within a surrogate pair, but never in the part that the validator keeps. It
    // also reports that the caret has moved: Orca, which gets to that once the field has the focus,
    // would say "blank" instead of the name of the field.
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    setMaxLength(2 * longestNameText);
    QAccessible::installUpdateHandler(handler);
    setFrame(false);
    NameField::setDensity({});

    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Highlight, Garden::withOpacity(Garden::mint, selectionOpacity));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colours);
    setTextColours();
    connect(&Garden::Contrast::shared(), &Garden::Contrast::changed, this,
            &NameField::setTextColours);
    QInputMethodEvent nothing;
    NameField::inputMethodEvent(&nothing);
}

void NameField::setTextColours() {
    QPalette colours = palette();
    colours.setColor(QPalette::Text, Garden::legible(Garden::primaryText));
    // Qt rounds its baseline differently from that of a typed text, which jumped by a pixel.
    colours.setColor(QPalette::PlaceholderText, Qt::transparent);
    setPalette(colours);
}

void NameField::setDensity(const Garden::Density& density) {
    density_ = density;
    setFont(Garden::scaled(Garden::sans(fontSize, QFont::Normal), density.scale));
    const int margin = Garden::scaled(fullPadding, density.scale) - lineEditMargin;
    setTextMargins(margin, 0, margin, 0);
    updateGeometry();
}

QSize NameField::sizeHint() const {
    const int line = std::max(fontMetrics().height(), Garden::scaled(lineHeight, density_.scale));
    const int padding = Garden::scaled(fullPadding, density_.air * density_.scale);
    return {QLineEdit::sizeHint().width(), line + 2 * padding};
}

void NameField::inputMethodEvent(QInputMethodEvent* event) {
    composing_ = !event->preeditString().isEmpty();
    // An input method that marks the place in its text itself asks for a caret of no width.
    caretHidden_ = std::ranges::any_of(event->attributes(), [](const auto& attribute) {
        return attribute.type == QInputMethodEvent::Cursor && attribute.length == 0;
    });
    QInputMethodEvent changed(event->preeditString(), withoutCaret(*event));
    changed.setCommitString(event->commitString(), event->replacementStart(),
                            event->replacementLength());
    QLineEdit::inputMethodEvent(&changed);
    event->setAccepted(changed.isAccepted());
}

void NameField::paintEvent(QPaintEvent* event) {
    paintPlate();
    if (text().isEmpty() && !composing_) {
        paintPlaceholder();
    }
    QLineEdit::paintEvent(event);
    if (hasFocus() && !hasSelectedText() && !caretHidden_) {
        paintCaret();
    }
}

void NameField::paintPlate() {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath shape = Garden::continuousRoundedRect(Garden::inset(rect(), edgeWidth / 2),
                                                             cornerRadius * density_.scale);
    painter.fillPath(shape, Garden::withOpacity(Qt::white, plateOpacity));
    painter.strokePath(
        shape, QPen(Garden::legible(Garden::withOpacity(Garden::mint, edgeOpacity)), edgeWidth));
}

bool NameField::startsAtRight() const {
    return QStyle::visualAlignment(layoutDirection(), alignment()).testFlag(Qt::AlignRight);
}

void NameField::paintPlaceholder() {
    const QFontMetricsF metrics(font());
    const int margin = textMargins().left() + lineEditMargin;
    const QString shown =
        metrics.elidedText(placeholderText(), Qt::ElideRight, width() - 2 * margin);
    const double left =
        startsAtRight() ? width() - margin - metrics.horizontalAdvance(shown) : margin;
    QPainter painter(this);
    // Dimmer than a typed name, even in high contrast.
    painter.setPen(Garden::Contrast::shared().isHigh()
                       ? Garden::legible(Garden::muted)
                       : Garden::withOpacity(Qt::white, placeholderOpacity));
    // As QLineEdit places a text: it rounds the ascent of the line up, that of the font down.
    const int line = (height() - fontMetrics().height() + 1) / 2;
    const double top = line + fontMetrics().ascent() - std::ceil(metrics.ascent());
    painter.drawText(QPointF(left, top + metrics.ascent()), shown);
}

void NameField::paintCaret() {
    // Whole device pixels, so that it is equally sharp everywhere.
    const double width = std::round(caretWidth * devicePixelRatioF()) / devicePixelRatioF();
    double centre = cursorRect().left() + cursorRectMargin;
    if (text().isEmpty() && !composing_) {
        const double outside = textMargins().left() + lineEditMargin - caretClearance - width / 2;
        centre = startsAtRight() ? this->width() - outside : outside;
    }
    const double height = fontMetrics().height();
    const double top = (this->height() - height) / 2;
    QPainter(this).fillRect(QRectF(centre - width / 2, top, width, height), Garden::mint);
}
