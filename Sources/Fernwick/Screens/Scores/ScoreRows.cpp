#include "Screens/Scores/ScoreRows.hpp"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <algorithm>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/EdgeFade.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/ScoreRow.hpp"

namespace {

constexpr double emptyTextSize = 13;
constexpr int emptyTextPadding = 28;
constexpr int rowSpacing = 4;
constexpr int scrollBarWidth = 10;
constexpr int scrollHandleWidth = 4;
constexpr int scrollHandleMargin = (scrollBarWidth - scrollHandleWidth) / 2;
constexpr int minimumScrollHandleHeight = 24;
constexpr double scrollHandleOpacity = 0.4;
constexpr double ringRadius = 9;
constexpr int fadeLength = 10;

QString scrollBarStyle() {
    return QStringLiteral(
               "QScrollBar:vertical { background: transparent; width: %1px; border: none; }"
               "QScrollBar::handle:vertical { background: %2; border-radius: %3px;"
               " margin: %4px; min-height: %5px; }"
               "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
               "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
        .arg(scrollBarWidth)
        .arg(Garden::css(Garden::withOpacity(Garden::muted, scrollHandleOpacity)))
        .arg(scrollHandleWidth / 2)
        .arg(scrollHandleMargin)
        .arg(minimumScrollHandleHeight);
}

}  // namespace

ScoreRows::ScoreRows(QWidget* parent)
    : QWidget(parent),
      empty_(new QWidget),
      emptyText_(new Garden::TrackedLabel(tr("A fresh start. Be the first on the board."),
                                          Garden::sans(emptyTextSize, QFont::Normal),
                                          Garden::muted)),
      scrollArea_(new QScrollArea),
      fade_(new Garden::EdgeFade),
      indicator_(new QScrollBar(Qt::Vertical, scrollArea_)),
      column_(nullptr) {
    auto* padding = Garden::layOut<QVBoxLayout>(empty_, 0);
    padding->setContentsMargins(0, emptyTextPadding, 0, emptyTextPadding);
    padding->addWidget(emptyText_, 0, Qt::AlignCenter);
    scrollArea_->hide();
    auto* list = new QWidget;
    column_ = Garden::layOut<QVBoxLayout>(list, rowSpacing);
    column_->addStretch();
    scrollArea_->setWidget(list);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Garden::setAccessibleRole(*scrollArea_, QAccessible::List);
    //: Read aloud for the list of scores.
    scrollArea_->setAccessibleName(tr("Scores"));
    for (QWidget* part : scrollArea_->findChildren<QWidget*>()) {
        Garden::setAccessibleRole(*part, QAccessible::NoRole);
    }
    scrollArea_->installEventFilter(this);
    scrollArea_->viewport()->setAutoFillBackground(false);
    scrollArea_->viewport()->setGraphicsEffect(fade_);
    list->setAutoFillBackground(false);

    auto* forms = Garden::layOut<QVBoxLayout>(this, 0);
    forms->addWidget(empty_);
    forms->addWidget(scrollArea_);
    showIndicator();
}

void ScoreRows::setHeights(int full, int least) {
    fullHeight_ = full;
    leastHeight_ = least;
    setDensity(density_);
}

void ScoreRows::setDensity(const Garden::Density& density) {
    density_ = density;
    if (fullHeight_ > 0) {
        // With all the air there is, the list has its full height too.
        const int least = density.isFull() ? fullHeight_ : leastHeight_;
        setMinimumHeight(Garden::scaled(least, density.scale));
        setMaximumHeight(Garden::scaled(fullHeight_, density.scale));
    }
    for (ScoreRow* row : rows_) {
        row->setDensity(density);
    }
    if (!rows_.isEmpty()) {
        // The rows have got another height, which this widget may have had before.
        placeList();
    }
    updateGeometry();
}

QSize ScoreRows::sizeHint() const {
    const QSize hint = QWidget::sizeHint();
    return fullHeight_ > 0 ? QSize(hint.width(), maximumHeight()) : hint;
}

void ScoreRows::showIndicator() {
    const QScrollBar* scrolling = scrollArea_->verticalScrollBar();
    indicator_->setStyleSheet(scrollBarStyle());
    indicator_->raise();
    connect(scrolling, &QScrollBar::rangeChanged, this, &ScoreRows::followRange);
    connect(scrolling, &QScrollBar::valueChanged, indicator_, &QScrollBar::setValue);
    connect(scrolling, &QScrollBar::valueChanged, this, &ScoreRows::fadeEdges);
    connect(indicator_, &QScrollBar::valueChanged, scrolling, &QScrollBar::setValue);
    followRange(scrolling->minimum(), scrolling->maximum());
}

void ScoreRows::followRange(int minimum, int maximum) {
    const bool scrolls = maximum > minimum;
    indicator_->setRange(minimum, maximum);
    indicator_->setPageStep(scrollArea_->viewport()->height());
    indicator_->setVisible(scrolls);
    // Focusable only while there is something to scroll.
    scrollArea_->setFocusPolicy(scrolls ? Qt::TabFocus : Qt::NoFocus);
    // The rows have got their places.
    showHighlighted();
    fadeEdges();
}

bool ScoreRows::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        focusRing_.focusIn(static_cast<QFocusEvent*>(event)->reason());
        update();
    } else if (event->type() == QEvent::FocusOut) {
        focusRing_.focusOut(static_cast<QFocusEvent*>(event)->reason());
        update();
    }
    return QWidget::eventFilter(watched, event);
}

bool ScoreRows::showsWholeRows() const {
    const bool full = fullHeight_ == 0 || (density_.isFull() && height() >= maximumHeight());
    return !full && !rows_.isEmpty() && height() >= pitch();
}

int ScoreRows::listHeight() const {
    if (!showsWholeRows()) {
        return height();
    }
    const int spacing = column_->spacing();
    return (height() + spacing) / pitch() * pitch() - spacing;
}

int ScoreRows::pitch() const {
    return rows_.first()->sizeHint().height() + column_->spacing();
}

void ScoreRows::placeList() {
    scrollArea_->setMaximumHeight(listHeight());
    layout()->activate();
    // At once: otherwise a frame could show the rows squeezed into the height of the rows before.
    column_->activate();
    QEvent fitToRows(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(scrollArea_, &fitToRows);
    QRect trailingEdge = scrollArea_->geometry();
    trailingEdge.setLeft(width() - scrollBarWidth);
    indicator_->setGeometry(QStyle::visualRect(layoutDirection(), rect(), trailingEdge));
    showHighlighted();
}

void ScoreRows::resizeEvent(QResizeEvent*) {
    placeList();
}

void ScoreRows::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF ring = Garden::inset(rect(), Garden::FocusRing::width / 2);
    focusRing_.paint(painter, Garden::continuousRoundedRect(ring, ringRadius), Garden::mint);
}

void ScoreRows::setRowCount(std::size_t count) {
    const auto wanted = static_cast<qsizetype>(count);
    while (rows_.size() > wanted) {
        delete rows_.takeLast();
    }
    while (rows_.size() < wanted) {
        auto* row = new ScoreRow;
        row->setDensity(density_);
        // Insert before the final stretch, which aligns a short list to the top.
        column_->insertWidget(column_->count() - 1, row);
        row->setVisible(true);
        rows_.append(row);
    }
}

void ScoreRows::setEntries(const std::vector<SnakeCore::HighScore>& entries,
                           const std::optional<SnakeCore::UUID>& highlighted) {
    if (entries == entries_ && highlighted == highlighted_) {
        return;
    }
    entries_ = entries;
    highlighted_ = highlighted;
    empty_->setVisible(entries.empty());
    scrollArea_->setVisible(!entries.empty());
    setRowCount(entries.size());
    highlightedRow_ = nullptr;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const bool isHighlighted = highlighted == entries[index].id;
        ScoreRow* row = rows_[static_cast<qsizetype>(index)];
        row->show(static_cast<std::int64_t>(index) + 1, entries[index], isHighlighted);
        if (isHighlighted) {
            highlightedRow_ = row;
        }
    }
    placeList();
}

QStringList ScoreRows::texts() const {
    QStringList texts;
    for (const ScoreRow* row : rows_) {
        texts.append(row->accessibleName());
    }
    return texts.isEmpty() ? QStringList(emptyText_->text()) : texts;
}

QString ScoreRows::highlightedText() const {
    return highlightedRow_ == nullptr ? QString() : highlightedRow_->accessibleName();
}

void ScoreRows::showHighlighted() {
    if (highlightedRow_ == nullptr && !showsWholeRows()) {
        return;
    }
    QScrollBar* scrolling = scrollArea_->verticalScrollBar();
    int top = scrolling->value();
    if (highlightedRow_ != nullptr) {
        const QRect row = highlightedRow_->geometry();
        top = std::max(0, row.center().y() - scrollArea_->viewport()->height() / 2);
    }
    if (showsWholeRows()) {
        top = (top + pitch() / 2) / pitch() * pitch();
    }
    scrolling->setValue(top);
}

void ScoreRows::fadeEdges() {
    const QScrollBar* scrolling = scrollArea_->verticalScrollBar();
    const int above = scrolling->value() - scrolling->minimum();
    const int below = scrolling->maximum() - scrolling->value();
    fade_->setLengths(std::min(fadeLength, above), std::min(fadeLength, below));
}
