#include "Screens/Main/HintRow.hpp"

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/IconButton.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/MovementLetters.hpp"
#include "Session/Session.hpp"

namespace {

constexpr double hintOpacity = 0.8;
constexpr double arrowsSize = 13;
constexpr double hintSize = 11;
// As wide as the three spaces around the dots.
constexpr int hintSpacing = 20;
// The arrows and the letters are one hint.
constexpr int arrowsSpacing = 9;
constexpr int buttonSpacing = 8;
constexpr int lineSpacing = 4;
constexpr int columnSpacing = 12;

Garden::TrackedLabel* hint(const QString& text, double size) {
    return new Garden::TrackedLabel(text, Garden::mono(size, QFont::Normal),
                                    Garden::withOpacity(Garden::mint, hintOpacity));
}

// Without the first dot, which separates the text from the one before; `apart` breaks the line at
// the other dot instead.
QString folded(const QString& commands, bool apart) {
    const QStringList parts = commands.split(QStringLiteral("·"), Qt::SkipEmptyParts);
    return apart ? parts.first().trimmed() + u'\n' + parts.last().trimmed()
                 : commands.mid(1).trimmed();
}

}  // namespace

HintRow::HintRow(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      scores_(new Garden::IconButton(Garden::Icon::trophy, tr("High scores"))),
      sound_(new Garden::IconButton(Garden::Icon::speakerWaves, tr("Toggle sound effects"))),
      pause_(new Garden::IconButton(Garden::Icon::play, tr("Pause or resume"))),
      arrows_(hint(QStringLiteral("↑ ↓ ← →"), arrowsSize)),
      //: Follows the four arrows. WASD stays as it is: the game shows ZQSD instead where
      //: keyboards have these letters there.
      letters_(hint(withMovementLetters(tr("or WASD to move")), hintSize)),
      commands_(hint({}, hintSize)),
      moves_(new QHBoxLayout),
      lines_(new QHBoxLayout),
      row_(Garden::layOut<QHBoxLayout>(this, hintSpacing)) {
    // Not mirrored in right-to-left layouts: the arrows keep their order.
    arrows_->setLayoutDirection(Qt::LeftToRight);
    // Its own direction decides which side AlignLeft is.
    moves_->addWidget(arrows_, 0, isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    moves_->addWidget(letters_, 0, Qt::AlignLeft);
    lines_->addLayout(moves_);
    lines_->setAlignment(moves_, Qt::AlignLeft);
    lines_->addWidget(commands_, 0, Qt::AlignLeft);
    row_->addLayout(lines_);
    row_->addStretch();

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(buttonSpacing);
    buttons->addWidget(scores_);
    buttons->addWidget(sound_);
    buttons->addWidget(pause_);
    row_->addLayout(buttons);
    row_->setAlignment(buttons, Qt::AlignLeft);
    density_ = new Garden::ContentDensity(*this);
    arrange(Form::oneLine, {});
    // The icon shows whether sounds are on; screen readers need the checked state.
    sound_->setCheckable(true);
    Garden::setAccessibleRole(*sound_, QAccessible::CheckBox);

    connect(scores_, &QAbstractButton::clicked, &session_, &Session::openScores);
    connect(sound_, &QAbstractButton::clicked, &session_,
            [this] { session_.setSound(!session_.sound()); });
    connect(pause_, &QAbstractButton::clicked, &session_, &Session::pause);
    connect(&session_, &Session::changed, this, &HintRow::refresh);
    refresh();
}

void HintRow::arrange(Form form, const Garden::Density& density) {
    const bool asColumn = form == Form::column;
    density_->set(density);
    const auto direct = [&](QBoxLayout* layout, bool down, int spacing) {
        layout->setDirection(down ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        layout->setSpacing(Garden::scaled(spacing, density.air * density.scale));
    };
    direct(moves_, asColumn, asColumn ? lineSpacing : arrowsSpacing);
    direct(lines_, form != Form::oneLine, form == Form::oneLine ? hintSpacing : lineSpacing);
    direct(row_, asColumn, asColumn ? columnSpacing : hintSpacing);
    //: Three spaces on each side of a dot, as here. R stays a Latin letter.
    const QString commands = tr("·   SPACE to pause   ·   R to restart");
    commands_->setText(form == Form::oneLine ? commands : folded(commands, asColumn));
}

void HintRow::refresh() {
    sound_->setIcon(session_.sound() ? Garden::Icon::speakerWaves : Garden::Icon::speakerSlash);
    sound_->setChecked(session_.sound());
    pause_->setIcon(session_.running() ? Garden::Icon::pause : Garden::Icon::play);
    pause_->setEnabled(session_.inRun());
}
