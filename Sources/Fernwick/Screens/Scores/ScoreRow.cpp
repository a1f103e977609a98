#include "Screens/Scores/ScoreRow.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "Garden/Look/Contrast.hpp"
#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Screens/Scores/NameText.hpp"

namespace {

constexpr double fontSize = 14;
constexpr double elementSpacing = 14;
constexpr double rankWidth = 25;
constexpr double horizontalPadding = 14;
constexpr double verticalPadding = 10;
constexpr double cornerRadius = 9;
constexpr double plateOpacity = 0.025;
constexpr double highlightOpacity = 0.12;

QFont rowFont() {
    return Garden::sans(fontSize, QFont::Medium);
}

// Inter's digits differ in width. Drawn in cells of the widest one, numbers align in columns.
double digitCell(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    }
    return widest;
}

void drawDigits(QPainter& painter, const QRectF& line, const QString& digits) {
    const double cell = digitCell(QFontMetricsF(painter.font()));
    QRectF digitRect(line.left(), line.top(), cell, line.height());
    for (const QChar digit : digits) {
        painter.drawText(digitRect, Qt::AlignCenter | Qt::TextDontClip, QString(digit));
        digitRect.translate(cell, 0);
    }
}

// The name's own letters decide its direction, not the language of the program, unless it has none.
Qt::LayoutDirection directionOf(const QString& name, Qt::LayoutDirection otherwise) {
    const auto letters = name.toUcs4();
    const bool hasLetter =
        std::ranges::any_of(letters, [](char32_t letter) { return QChar::isLetter(letter); });
    if (!hasLetter) {
        return otherwise;
    }
    return name.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

}  // namespace

ScoreRow::ScoreRow(QWidget* parent) : QWidget(parent) {
    Garden::setAccessibleRole(*this, QAccessible::ListItem);
    setFont(rowFont());
}

void ScoreRow::show(std::int64_t rank, const SnakeCore::HighScore& entry, bool highlighted) {
    const QString rankText = QStringLiteral("%1").arg(rank, 2, 10, QLatin1Char('0'));
    const QString name = listedNameText(QString::fromStdString(entry.name));
    const QString score = QString::number(entry.score);
    if (rankText == rank_ && name == name_ && score == score_ && highlighted == highlighted_) {
        return;
    }
    rank_ = rankText;
    name_ = name;
    score_ = score;
    highlighted_ = highlighted;
    setAccessibleName(QStringLiteral("%1 %2 %3").arg(rank_, name_, score_));
    update();
}

QSize ScoreRow::sizeHint() const {
    const int height = fontMetrics().height() + static_cast<int>(2 * verticalPadding * scale_);
    return {static_cast<int>((2 * horizontalPadding + rankWidth) * scale_), height};
}

void ScoreRow::setDensity(const Garden::Density& density) {
    scale_ = density.scale;
    setFont(Garden::scaled(rowFont(), scale_));
    updateGeometry();
    update();
}

QRectF ScoreRow::asRead(const QRectF& area) const {
    QRectF mirrored = area;
    mirrored.moveRight(width() - area.left());
    return isRightToLeft() ? mirrored : area;
}

void ScoreRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(Garden::continuousRoundedRect(rect(), cornerRadius * scale_),
                     highlighted_ ? Garden::withOpacity(Garden::mint, highlightOpacity)
                                  : Garden::withOpacity(Qt::white, plateOpacity));

    const QFontMetricsF metrics(font());
    const double side = horizontalPadding * scale_;
    const double above = verticalPadding * scale_;
    const double spacing = elementSpacing * scale_;
    const double ranks = rankWidth * scale_;
    const QRectF line = QRectF(rect()).adjusted(side, above, -side, -above);
    const double cell = digitCell(metrics);

    QRectF rank = line;
    rank.setWidth(static_cast<double>(rank_.size()) * cell);
    rank.moveLeft(line.left() + (ranks - rank.width()) / 2);
    painter.setPen(Garden::legible(Garden::muted));
    drawDigits(painter, asRead(rank), rank_);

    QRectF score = line;
    score.setLeft(line.right() - static_cast<double>(score_.size()) * cell);
    painter.setPen(Garden::mint);
    drawDigits(painter, asRead(score), score_);

    QRectF name = line;
    name.setLeft(line.left() + ranks + spacing);
    // A gap of no width between the name and the score would have spacing on both sides.
    name.setRight(score.left() - 2 * spacing);
    painter.setPen(Garden::legible(Garden::primaryText));
    const int begin = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    painter.setLayoutDirection(directionOf(name_, layoutDirection()));
    painter.drawText(asRead(name),
                     begin | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(name_, Qt::ElideRight, name.width()));
}
