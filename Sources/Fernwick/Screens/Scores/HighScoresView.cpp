#include "Screens/Scores/HighScoresView.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/RoundedShape.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/ChoiceGroup.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/ScoreRows.hpp"
#include "Session/Session.hpp"

namespace {

constexpr int sheetWidth = 440;
constexpr int padding = 32;
constexpr int spacing = 20;
constexpr double emblemSize = 28;
constexpr double titleSize = 30;
constexpr double subtitleSize = 12;
constexpr int listHeight = 330;
constexpr int leastListHeight = 160;
constexpr Garden::ContentHeight tallest{660, 164, 425};
constexpr double cornerRadius = 22;
constexpr double edgeOpacity = 0.16;

QString subtitle() {
#ifdef Q_OS_MACOS
    return HighScoresView::tr("Top 10 for each speed · saved on this Mac");
#else
    return HighScoresView::tr("Top 10 for each speed · saved on this computer");
#endif
}

}  // namespace

HighScoresView::HighScoresView(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      //: Read aloud for the choice between the speeds.
      speed_(new Garden::ChoiceGroup(paceNames(), tr("Speed"))),
      rows_(new ScoreRows) {
    // For the names of players.
    Garden::provideSystemFonts();
    Garden::setAccessibleRole(*this, QAccessible::Dialog);
    setAccessibleName(tr("The high scores."));
    rows_->setHeights(listHeight, leastListHeight);
    auto* done = new Garden::GardenButton(tr("Done"));

    auto* column = Garden::layOut<QVBoxLayout>(this, spacing, padding);
    column->addWidget(new Garden::IconView(Garden::Icon::trophy, emblemSize, Garden::mint), 0,
                      Qt::AlignHCenter);
    column->addWidget(
        new Garden::TrackedLabel(tr("The high scores."), Garden::serif(titleSize, QFont::Normal),
                                 Garden::primaryText),
        0, Qt::AlignHCenter);
    column->addWidget(new Garden::TrackedLabel(
                          subtitle(), Garden::sans(subtitleSize, QFont::Normal), Garden::muted),
                      0, Qt::AlignHCenter);
    column->addWidget(speed_, 0, Qt::AlignHCenter);
    column->addWidget(rows_);
    column->addWidget(done, 0, Qt::AlignHCenter);

    connect(speed_, &Garden::ChoiceGroup::chosen, this, [this](int index) {
        session_.chooseScorePace(allPaces.at(static_cast<std::size_t>(index)));
    });
    connect(done, &QAbstractButton::clicked, &session_, &Session::closeScores);
    density_ = new Garden::ContentDensity(*this);
    connect(&session_, &Session::changed, this, &HighScoresView::refresh);
    refresh();
}

QSize HighScoresView::fittedTo(int available) {
    const Garden::Density density = Garden::densityFor(available, tallest);
    scale_ = density.scale;
    density_->set(density);
    return {Garden::scaled(sheetWidth, scale_),
            std::min(layout()->totalSizeHint().height(), available)};
}

void HighScoresView::refresh() {
    if (!session_.showingScores()) {
        return;
    }
    speed_->setCurrent(static_cast<int>(session_.scorePace()));
    rows_->setEntries(session_.scores().leaders(rawValue(session_.scorePace())));
}

void HighScoresView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        session_.closeScores();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void HighScoresView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = cornerRadius * scale_;
    painter.fillPath(Garden::continuousRoundedRect(rect(), radius), Garden::night);
    painter.strokePath(Garden::continuousRoundedRect(Garden::inset(rect(), 0.5), radius),
                       QPen(Garden::withOpacity(Garden::mint, edgeOpacity), 1));
}
