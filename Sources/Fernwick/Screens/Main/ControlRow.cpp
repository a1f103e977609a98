#include "Screens/Main/ControlRow.hpp"

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/StatusDot.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/Session.hpp"

namespace {

constexpr double statusSize = 9;
constexpr double statusTracking = 2;
constexpr int statusSpacing = 8;

}  // namespace

ControlRow::ControlRow(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      speeds_(new Garden::ChoiceGroup(paceNames(), tr("Speed"))),
      dot_(new Garden::StatusDot),
      status_(new Garden::TrackedLabel({}, Garden::sans(statusSize, QFont::Medium, statusTracking),
                                       Garden::muted)) {
    auto* row = Garden::layOut<QHBoxLayout>(this, statusSpacing);
    row->addWidget(speeds_);
    row->addStretch();
    row->addWidget(dot_);
    row->addWidget(status_);
    connect(speeds_, &Garden::ChoiceGroup::chosen, this, [this](int index) {
        session_.choosePace(allPaces.at(static_cast<std::size_t>(index)));
    });
    connect(&session_, &Session::changed, this, &ControlRow::refresh);
    refresh();
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
}
