#include "Screens/Main/HeaderRow.hpp"

#include <algorithm>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/RollingDigits.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/Session.hpp"

namespace {

constexpr double wordmarkSize = 14;
constexpr double wordmarkTracking = 6;
constexpr int wordmarkSpacing = 9;
constexpr double taglineSize = 27;
constexpr double taglineOpacity = 0.9;
constexpr int titleBlockSpacing = 8;
constexpr double labelSize = 9;
constexpr double labelTracking = 2;
// The digits are drawn at the middle of a line with room for them to roll: from the label to the
// digits it is 14 points.
constexpr int tileSpacing = 2;
constexpr QSize ruleSize(1, 36);
constexpr double ruleOpacity = 0.25;
constexpr int rulePadding = 12;
// What the digits' line has more below its ink than the label's has above, so that the middle of
// the rule is that of the label and the digits in every script.
constexpr int spaceBelowRule = 9;
constexpr int columnSpacing = 18;
// In a column, so that it stays on one line in all languages.
constexpr double columnTaglineScale = 0.68;

}  // namespace

HeaderRow::HeaderRow(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      score_(new Garden::RollingDigits(Qt::AlignLeft)),
      best_(new Garden::RollingDigits(Qt::AlignRight)),
      rule_(new QWidget),
      //: The line under the wordmark: of the garden, and of whoever plays in it.
      tagline_(new Garden::TrackedLabel(tr("A little room to grow."),
                                        Garden::serif(taglineSize, QFont::ExtraLight),
                                        Garden::withOpacity(Qt::white, taglineOpacity))),
      row_(Garden::layOut<QHBoxLayout>(this, 0)) {
    Garden::setAccessibleRole(*this, QAccessible::Client);
    row_->addLayout(titleBlock());
    row_->addStretch();
    row_->addLayout(scoreTiles());
    density_ = new Garden::ContentDensity(*this);
    connect(&session_, &Session::changed, this, &HeaderRow::refresh);
    refresh();
}

void HeaderRow::arrange(bool asColumn, const Garden::Density& density) {
    density_->set(density);
    rule_->setFixedHeight(Garden::scaled(ruleSize.height(), std::max(1.0, density.scale)));
    const double taglineScale = asColumn ? columnTaglineScale : 1;
    tagline_->setDensity({density.air, density.scale * taglineScale});
    row_->setDirection(asColumn ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    row_->setSpacing(asColumn ? Garden::scaled(columnSpacing, density.air * density.scale) : 0);
}

QBoxLayout* HeaderRow::scoreTiles() {
    rule_->setObjectName(QStringLiteral("rule"));
    rule_->setFixedSize(ruleSize);
    rule_->setPalette(Garden::withOpacity(Garden::muted, ruleOpacity));
    rule_->setAutoFillBackground(true);
    auto* ruleColumn = new QVBoxLayout;
    ruleColumn->addStretch();
    ruleColumn->addWidget(rule_);
    ruleColumn->addStretch();
    ruleColumn->addSpacing(spaceBelowRule);
    auto* tiles = new QHBoxLayout;
    tiles->setSpacing(0);
    //: A tiny label above a number; so is the next. In capitals where the script has them.
    tiles->addLayout(scoreTile(tr("SCORE"), score_, Qt::AlignLeft));
    tiles->addSpacing(rulePadding);
    tiles->addLayout(ruleColumn);
    tiles->addSpacing(rulePadding);
    tiles->addLayout(scoreTile(tr("PERSONAL BEST"), best_, Qt::AlignRight));
    return tiles;
}

QBoxLayout* HeaderRow::titleBlock() {
    auto* wordmark = new QHBoxLayout;
    wordmark->setSpacing(wordmarkSpacing);
    wordmark->addWidget(new Garden::IconView(Garden::Icon::leafFilled, wordmarkSize, Garden::mint));
    wordmark->addWidget(new Garden::TrackedLabel(
        //: The name of the game as its wordmark. Stays as it is in every language.
        tr("FERNWICK"), Garden::sans(wordmarkSize, QFont::DemiBold, wordmarkTracking),
        Garden::primaryText));
    wordmark->addStretch();

    auto* block = new QVBoxLayout;
    block->setSpacing(titleBlockSpacing);
    block->addLayout(wordmark);
    block->addWidget(tagline_);
    return block;
}

QBoxLayout* HeaderRow::scoreTile(const QString& label, Garden::RollingDigits* value,
                                 Qt::Alignment alignment) {
    value->setAccessibleName(label);
    auto* caption = new Garden::TrackedLabel(
        label, Garden::sans(labelSize, QFont::Medium, labelTracking), Garden::muted);
    // The number has it in its name.
    Garden::setAccessibleRole(*caption, QAccessible::NoRole);
    auto* tile = new QVBoxLayout;
    tile->setSpacing(tileSpacing);
    tile->addWidget(caption, 0, alignment);
    tile->addWidget(value, 0, alignment);
    return tile;
}

void HeaderRow::refresh() {
    score_->setValue(session_.game().score());
    best_->setValue(session_.best());
}
