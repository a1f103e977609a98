#include "Screens/Main/ControlRow.hpp"

#include <algorithm>
#include <utility>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Announcer.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Main/HeaderRow.hpp"

namespace {

constexpr double statusSize = 9;
constexpr double statusTracking = 2;
// From the margin around the dot; from the dot itself it is eight points.
constexpr int statusSpacing = 7;
constexpr int columnSpacing = 12;
// Of the speeds in a column, so that the longest names fit.
constexpr double columnAir = 0.6;
// Less often would be too seldom, and more often would talk over the game. The sound tells of each
// fruit.
constexpr std::int64_t announcedPoints = 100;

}  // namespace

ControlRow::ControlRow(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      run_(session.runID()),
      phase_(session.phase()),
      pace_(session.pace()),
      speeds_(new Garden::ChoiceGroup(paceNames(), tr("Speed"))),
      dot_(new Garden::StatusDot),
      status_(new Garden::TrackedLabel({}, Garden::sans(statusSize, QFont::Medium, statusTracking),
                                       Garden::muted)),
      row_(Garden::layOut<QHBoxLayout>(this, statusSpacing)) {
    auto* status = new QHBoxLayout;
    status->setSpacing(statusSpacing);
    status->addWidget(dot_);
    status->addWidget(status_);
    row_->addWidget(speeds_, 0, Qt::AlignLeft);
    row_->addStretch();
    row_->addLayout(status);
    connect(speeds_, &Garden::ChoiceGroup::chosen, this, [this](int index) {
        session_.choosePace(allPaces.at(static_cast<std::size_t>(index)));
    });
    density_ = new Garden::ContentDensity(*this);
    speedsDensity_ = new Garden::ContentDensity(*speeds_);
    connect(&session_, &Session::changed, this, &ControlRow::refresh);
    refresh();
}

void ControlRow::arrange(int columnWidth, const Garden::Density& density) {
    const bool asColumn = columnWidth > 0;
    density_->set(density);
    speedsDensity_->set({asColumn ? columnAir : density.air, density.scale});
    row_->setDirection(asColumn ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    row_->setSpacing(
        Garden::scaled(asColumn ? columnSpacing : statusSpacing, density.air * density.scale));
    const int beforeStatus =
        dot_->width() + Garden::scaled(statusSpacing, std::max(1.0, density.scale));
    status_->wrapAt(asColumn ? columnWidth - beforeStatus : 0);
}

QString ControlRow::statusWord() const {
    if (session_.running()) {
        //: What the game is doing, in tiny capitals: a run is going on.
        return tr("IN THE FLOW");
    }
    if (session_.game().ended()) {
        //: The run is over.
        return tr("ANOTHER CHANCE TO GROW");
    }
    //: The run is paused; and: no run has been started yet, of a classic game in a new garden.
    return session_.started() ? tr("TAKE A BREATH") : tr("THE CLASSIC, REPLANTED");
}

void ControlRow::refresh() {
    speeds_->setCurrent(static_cast<int>(session_.pace()));
    speeds_->setChoicesEnabled(!session_.inRun() && !session_.awaitingName());
    dot_->setColour(session_.running() ? Garden::mint : Garden::muted);
    status_->setText(statusWord());
    announce();
}

// The end of a run is announced by its card.
void ControlRow::announce() {
    const bool restarts = session_.runID() != std::exchange(run_, session_.runID());
    const bool changesPhase = session_.phase() != std::exchange(phase_, session_.phase());
    const std::int64_t score = session_.game().score();
    const std::int64_t before = std::exchange(score_, score);
    if (session_.pace() != std::exchange(pace_, session_.pace())) {
        Garden::announce(*this, displayName(pace_));
    }
    if (!session_.inRun()) {
        return;
    }
    if (changesPhase || restarts) {
        Garden::announce(*this, statusWord());
    }
    const bool pauses = changesPhase && !session_.running();
    if (pauses || score / announcedPoints > before / announcedPoints) {
        Garden::announce(*this, QStringLiteral("%1: %2").arg(HeaderRow::tr("SCORE")).arg(score));
    }
}
