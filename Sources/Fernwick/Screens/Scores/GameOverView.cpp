#include "Screens/Scores/GameOverView.hpp"

#include <QGraphicsOpacityEffect>
#include <algorithm>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Motion.hpp"
#include "Garden/Look/NumberText.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Announcer.hpp"
#include "Garden/Widgets/FocusRing.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/NameEntry.hpp"
#include "Screens/Scores/SavedBoard.hpp"
#include "Session/Session.hpp"

namespace {

constexpr double headlineSize = 34;
constexpr double resultSize = 11;
constexpr double resultTracking = 2;
constexpr int widestCard = 400;
constexpr int cardPadding = 24;
constexpr int spacing = 14;
constexpr Garden::ContentSize entry{396, 343, 157, 280};
constexpr Garden::ContentSize saved{396, 404, 132, 279};

}  // namespace

GameOverView::GameOverView(Session& session, const QRect& area, QWidget* parent)
    : QWidget(parent),
      session_(session),
      presence_(this),
      card_(new QWidget(this)),
      headline_(new Garden::TrackedLabel({}, Garden::serif(headlineSize, QFont::Normal),
                                         Garden::primaryText)),
      result_(new Garden::TrackedLabel({}, Garden::sans(resultSize, QFont::Medium, resultTracking),
                                       Garden::mint)),
      nameEntry_(new NameEntry(session)),
      savedBoard_(new SavedBoard(session)) {
    setGeometry(area);
    auto* column = Garden::layOut<QVBoxLayout>(card_, spacing);
    column->addWidget(headline_, 0, Qt::AlignHCenter);
    column->addWidget(result_, 0, Qt::AlignHCenter);
    column->addWidget(nameEntry_);
    column->addWidget(savedBoard_);

    auto* row = Garden::layOut<QHBoxLayout>(this, 0, cardPadding);
    row->addStretch();
    // The stretch factor lets the card grow to its maximum width before the margins grow.
    row->addWidget(card_, 1, Qt::AlignVCenter);
    row->addStretch();
    density_ = new Garden::ContentDensity(*this);

    presence_.setStartValue(0.0);
    presence_.setEndValue(1.0);
    presence_.setDuration(Garden::cardDuration);
    presence_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&presence_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        if (fade_ != nullptr) {
            fade_->setOpacity(value.toDouble());
        }
        Q_EMIT scrimChanged();
    });
    connect(&presence_, &QVariantAnimation::finished, this, &GameOverView::endFade);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this, &GameOverView::fit);
    connect(&session_, &Session::changed, this, &GameOverView::refresh);
    refresh();
}

void GameOverView::resizeEvent(QResizeEvent*) {
    fit();
}

void GameOverView::fit() {
    const Garden::Density density = Garden::densityFor(
        size(), session_.awaitingName() ? entry : saved, Garden::TextScale::shared().factor());
    card_->setMaximumWidth(Garden::scaled(widestCard, std::max(1.0, density.scale)));
    density_->set(density);
}

double GameOverView::scrim() const {
    return fade_ == nullptr ? scrimOpacity : scrimOpacity * presence_.currentValue().toDouble();
}

void GameOverView::fadeIn() {
    if (!parentWidget()->isVisible() || Garden::reducedMotion()) {
        return;
    }
    fade_ = new QGraphicsOpacityEffect;
    fade_->setOpacity(0);
    card_->setGraphicsEffect(fade_);
    presence_.start();
}

void GameOverView::endFade() {
    presence_.stop();
    card_->setGraphicsEffect(nullptr);
}

void GameOverView::refresh() {
    const bool endsNow = session_.game().ended() && !ended_;
    ended_ = session_.game().ended();
    if (!ended_) {
        endFade();
        return;
    }
    fit();
    //: Headlines of an ended run: the snake fills the whole board; it struck something.
    headline_->setText(session_.game().won() ? tr("Fully grown.") : tr("Game over."));
    //: %lld is the score, %@ the name of the speed; both have to stay. Two spaces round the dot.
    result_->setText(Garden::withNumber(tr("%lld POINTS  ·  %@"), session_.game().score())
                         .replace(QStringLiteral("%@"), displayName(session_.runPace())));
    if (session_.awaitingName()) {
        savedBoard_->clear();
        savedBoard_->hide();
        nameEntry_->refresh();
        nameEntry_->show();
    } else {
        // Space starts the next run now, so no button may have the focus.
        Garden::releaseFocus(*nameEntry_);
        nameEntry_->hide();
        savedBoard_->refresh();
        if (savedBoard_->isHidden()) {
            savedBoard_->show();
            savedBoard_->announce();
        }
    }
    if (endsNow) {
        Garden::announce(*this, headline_->text());
        Garden::announce(*this, result_->text());
        Garden::announce(*this, NameEntry::tr("Leave your name in the garden."));
        fadeIn();
    }
}
