#include "Screens/Scores/SavedBoard.hpp"

#include <optional>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Announcer.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Session/Session.hpp"

namespace {

constexpr int spacing = 14;
constexpr double titleSize = 12;
constexpr int listHeight = 150;
constexpr int leastListHeight = 78;
constexpr double hintSize = 9;
constexpr double hintTracking = 2;

}  // namespace

SavedBoard::SavedBoard(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      title_(new Garden::TrackedLabel({}, Garden::sans(titleSize, QFont::Normal), Garden::muted,
                                      this)),
      rows_(new ScoreRows(this)),
      hint_(new Garden::TrackedLabel(
          //: The space bar.
          tr("SPACE TO PLAY AGAIN"), Garden::sans(hintSize, QFont::Normal, hintTracking),
          Garden::muted)) {
    rows_->setHeights(listHeight, leastListHeight);
    auto* replay = new Garden::GardenButton(tr("Play again"), this);
    connect(replay, &QAbstractButton::clicked, &session_, &Session::start);

    auto* column = Garden::layOut<QVBoxLayout>(this, spacing);
    column->addWidget(title_, 0, Qt::AlignHCenter);
    column->addWidget(rows_);
    column->addWidget(replay, 0, Qt::AlignHCenter);
    column->addWidget(hint_, 0, Qt::AlignHCenter);
}

void SavedBoard::clear() {
    rows_->setEntries({}, std::nullopt);
}

void SavedBoard::announce() {
    Garden::announce(*this, title_->text());
    if (const QString entry = rows_->highlightedText(); !entry.isEmpty()) {
        Garden::announce(*this, entry);
    }
    Garden::announce(*this, hint_->text());
}

void SavedBoard::refresh() {
    title_->setText(session_.savedRun() ? tr("Score saved · Top 10") : tr("Top 10"));
    rows_->setEntries(session_.scores().leaders(rawValue(session_.runPace())),
                      session_.savedRun() ? std::optional(session_.runID()) : std::nullopt);
}
