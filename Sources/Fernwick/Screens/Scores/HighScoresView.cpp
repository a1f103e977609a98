#include "Screens/Scores/HighScoresView.hpp"

#include <utility>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Widgets/Announcer.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Session/Session.hpp"

namespace {

constexpr int listHeight = 330;
constexpr int leastListHeight = 160;
constexpr Garden::ContentSize contents{440, 660, 164, 425};

QString subtitle() {
#ifdef Q_OS_MACOS
    return HighScoresView::tr("Top 10 for each speed · saved on this Mac");
#else
    return HighScoresView::tr("Top 10 for each speed · saved on this computer");
#endif
}

QString title() {
    // For the names of players, before any label looks up its font.
    Garden::provideSystemFonts();
    return HighScoresView::tr("The high scores.");
}

}  // namespace

HighScoresView::HighScoresView(Session& session, QWidget* parent)
    : Sheet(Garden::Icon::trophy, title(), contents, parent),
      session_(session),
      //: Read aloud for the choice between the speeds.
      speed_(new Garden::ChoiceGroup(paceNames(), tr("Speed"))),
      rows_(new ScoreRows) {
    rows_->setHeights(listHeight, leastListHeight);
    addLine(subtitle());
    add(speed_, Qt::AlignHCenter);
    add(rows_);
    complete();

    connect(speed_, &Garden::ChoiceGroup::chosen, this, [this](int index) {
        session_.chooseScorePace(allPaces.at(static_cast<std::size_t>(index)));
    });
    connect(&session_, &Session::changed, this, &HighScoresView::refresh);
    refresh();
}

void HighScoresView::refresh() {
    if (!session_.showingScores()) {
        announced_.reset();
        return;
    }
    speed_->setCurrent(static_cast<int>(session_.scorePace()));
    rows_->setEntries(session_.scores().leaders(rawValue(session_.scorePace())));
    if (std::exchange(announced_, session_.scorePace()) != session_.scorePace()) {
        Garden::announce(*this, displayName(session_.scorePace()));
        for (const QString& text : rows_->texts()) {
            Garden::announce(*this, text);
        }
    }
}
