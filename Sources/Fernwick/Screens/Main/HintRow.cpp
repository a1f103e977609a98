#include "Screens/Main/HintRow.hpp"

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/Session.hpp"

namespace {

constexpr double hintOpacity = 0.8;
constexpr double arrowsSize = 13;
constexpr double hintSize = 11;
// As wide as the three spaces around the dots.
constexpr int hintSpacing = 20;
constexpr int buttonSpacing = 8;

Garden::TrackedLabel* hint(const QString& text, double size) {
    return new Garden::TrackedLabel(text, Garden::mono(size, QFont::Normal),
                                    Garden::withOpacity(Garden::mint, hintOpacity));
}

}  // namespace

HintRow::HintRow(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      scores_(new Garden::IconButton(Garden::Icon::trophy, tr("High scores"))),
      sound_(new Garden::IconButton(Garden::Icon::speakerWaves, tr("Toggle sound effects"))),
      pause_(new Garden::IconButton(Garden::Icon::play, tr("Pause or resume"))) {
    auto* row = Garden::layOut<QHBoxLayout>(this, hintSpacing);
    auto* arrows = hint(QStringLiteral("↑ ↓ ← →"), arrowsSize);
    // Not mirrored in right-to-left layouts: the arrows keep their order.
    arrows->setLayoutDirection(Qt::LeftToRight);
    row->addWidget(arrows);
    //: Follows the four arrows. W A S D are places on the keyboard: name the letters that the
    //: keyboards of the language show there.
    row->addWidget(hint(tr("or WASD to move"), hintSize));
    //: Three spaces on each side of a dot, as here. R stays a Latin letter.
    row->addWidget(hint(tr("·   SPACE to pause   ·   R to restart"), hintSize));
    row->addStretch();

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addWidget(scores_);
    buttons->addWidget(sound_);
    buttons->addWidget(pause_);
    row->addLayout(buttons);
    // The icon shows whether sounds are on; screen readers need the checked state.
    sound_->setCheckable(true);

    connect(scores_, &QAbstractButton::clicked, &session_, &Session::openScores);
    connect(sound_, &QAbstractButton::clicked, &session_,
            [this] { session_.setSound(!session_.sound()); });
    connect(pause_, &QAbstractButton::clicked, &session_, &Session::pause);
    connect(&session_, &Session::changed, this, &HintRow::refresh);
    refresh();
}

void HintRow::refresh() {
    sound_->setIcon(session_.sound() ? Garden::Icon::speakerWaves : Garden::Icon::speakerSlash);
    sound_->setChecked(session_.sound());
    pause_->setIcon(session_.running() ? Garden::Icon::pause : Garden::Icon::play);
    pause_->setEnabled(session_.inRun());
}
