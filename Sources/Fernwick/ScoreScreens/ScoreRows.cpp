#include "ScoreScreens/ScoreRows.hpp"

#include <QScrollBar>
#include <QVBoxLayout>

#include "Garden/Fonts.hpp"
#include "Garden/Palette.hpp"
#include "Garden/StyleSheet.hpp"
#include "Garden/TrackedLabel.hpp"
#include "ScoreScreens/ScoreRow.hpp"

namespace {

constexpr double emptyTextSize = 13;
constexpr int emptyTextPadding = 28;
constexpr int rowSpacing = 4;
constexpr int scrollBarWidth = 10;
constexpr int scrollHandleWidth = 4;
constexpr int shortestScrollHandle = 24;
constexpr double scrollHandleOpacity = 0.4;

QString scrollBarStyle() {
    return QStringLiteral(
               "QScrollBar:vertical { background: transparent; width: %1px; border: none; }"
               "QScrollBar::handle:vertical { background: %2; border-radius: %3px;"
               " margin-left: %4px; min-height: %5px; }"
               "QScrollBar::add-line, QScrollBar::sub-line { height: 0; }"
               "QScrollBar::add-page, QScrollBar::sub-page { background: none; }")
        .arg(scrollBarWidth)
        .arg(Garden::css(Garden::withOpacity(Garden::muted, scrollHandleOpacity)))
        .arg(scrollHandleWidth / 2)
        .arg(scrollBarWidth - scrollHandleWidth)
        .arg(shortestScrollHandle);
}

}  // namespace

ScoreRows::ScoreRows(QWidget* parent)
    : QWidget(parent),
      empty_(new Garden::TrackedLabel(tr("A fresh start. Be the first on the board."),
                                      Garden::sans(emptyTextSize, QFont::Normal), Garden::muted)),
      scrollArea_(new QScrollArea),
      column_(nullptr) {
    auto* list = new QWidget;
    column_ = new QVBoxLayout(list);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(rowSpacing);
    column_->addStretch();
    scrollArea_->setWidget(list);
    scrollArea_->setWidgetResizable(true);
    scrollArea_->setFrameShape(QFrame::NoFrame);
    scrollArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrollArea_->verticalScrollBar()->setStyleSheet(scrollBarStyle());
    scrollArea_->setFocusPolicy(Qt::TabFocus);
    scrollArea_->viewport()->setAutoFillBackground(false);
    list->setAutoFillBackground(false);

    auto* forms = new QVBoxLayout(this);
    forms->setContentsMargins(0, 0, 0, 0);
    forms->addWidget(empty_, 0, Qt::AlignCenter);
    forms->addWidget(scrollArea_);
    empty_->setContentsMargins(0, emptyTextPadding, 0, emptyTextPadding);
}

void ScoreRows::setRowCount(std::size_t count) {
    const auto wanted = static_cast<qsizetype>(count);
    while (rows_.size() > wanted) {
        delete rows_.takeLast();
    }
    while (rows_.size() < wanted) {
        auto* row = new ScoreRow;
        // Before the stretch that keeps a short list at the top.
        column_->insertWidget(column_->count() - 1, row);
        rows_.append(row);
    }
}

void ScoreRows::setEntries(const std::vector<SnakeCore::HighScore>& entries,
                           const std::optional<SnakeCore::UUID>& highlighted) {
    empty_->setVisible(entries.empty());
    scrollArea_->setVisible(!entries.empty());
    setRowCount(entries.size());
    ScoreRow* pickedOut = nullptr;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const bool isPickedOut = highlighted == entries[index].id;
        ScoreRow* row = rows_[static_cast<qsizetype>(index)];
        row->show(static_cast<std::int64_t>(index) + 1, entries[index], isPickedOut);
        pickedOut = isPickedOut ? row : pickedOut;
    }
    if (pickedOut != nullptr) {
        // Once the rows have been laid out.
        QMetaObject::invokeMethod(
            pickedOut, [this, pickedOut] { scrollArea_->ensureWidgetVisible(pickedOut, 0, 0); },
            Qt::QueuedConnection);
    }
}
