#include "Screens/Main/Overlay.hpp"

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/NumberText.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Look/TextScale.hpp"
#include "Garden/Widgets/Announcer.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/IconView.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Session/Session.hpp"

namespace {

constexpr int padding = 25;
constexpr int spacing = 12;
// The glyphs of a title fill less of the height of its line than those of the other lines do: from
// the symbol to its capitals it is 26 points, from its baseline to the line below 19.
constexpr int spaceAboveTitle = 22;
constexpr int spaceBelowTitle = 7;
constexpr double symbolSize = 30;
constexpr double titleSize = 35;
constexpr double lineSize = 13;
constexpr double lineOpacity = 0.55;
constexpr int spaceAboveButton = 13;
constexpr double hintSize = 8;
constexpr double hintTracking = 2.5;
constexpr int spaceAboveHint = 2;
// With the line below the title on two lines.
constexpr Garden::ContentSize contents{416, 295, 118, 248};

}  // namespace

Overlay::Overlay(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      symbol_(new Garden::IconView(Garden::Icon::leaf, symbolSize, Garden::mint)),
      title_(new Garden::TrackedLabel({}, Garden::serif(titleSize, QFont::Normal),
                                      Garden::primaryText)),
      line_(new Garden::TrackedLabel({}, Garden::sans(lineSize, QFont::Normal),
                                     Garden::withOpacity(Qt::white, lineOpacity))),
      button_(new Garden::GardenButton({}, this, Garden::GardenButton::Style::arrow)),
      hint_(new Garden::TrackedLabel(
          //: The space bar.
          tr("PRESS SPACE"), Garden::sans(hintSize, QFont::Medium, hintTracking), Garden::muted)) {
    auto* column = Garden::layOut<QVBoxLayout>(this, 0, padding);
    column->addStretch();
    column->addWidget(symbol_, 0, Qt::AlignHCenter);
    column->addSpacing(spaceAboveTitle);
    column->addWidget(title_, 0, Qt::AlignHCenter);
    column->addSpacing(spaceBelowTitle);
    column->addWidget(line_, 0, Qt::AlignHCenter);
    column->addSpacing(spacing + spaceAboveButton);
    column->addWidget(button_, 0, Qt::AlignHCenter);
    column->addSpacing(spacing + spaceAboveHint);
    column->addWidget(hint_, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(button_, &QAbstractButton::clicked, this,
            [this] { session_.inRun() ? session_.pause() : session_.start(); });
    density_ = new Garden::ContentDensity(*this);
    connect(&Garden::TextScale::shared(), &Garden::TextScale::changed, this, &Overlay::fit);
    connect(&session_, &Session::changed, this, &Overlay::refresh);
    refresh();
}

void Overlay::resizeEvent(QResizeEvent*) {
    fit();
}

void Overlay::fit() {
    density_->set(Garden::densityFor(size(), contents, Garden::TextScale::shared().factor()));
    line_->wrapAt(contentsRect().marginsRemoved(layout()->contentsMargins()).width(),
                  Qt::AlignHCenter);
}

void Overlay::showEvent(QShowEvent*) {
    if (!session_.started()) {
        for (const QString& text : {title_->text(), button_->text(), hint_->text()}) {
            Garden::announce(*this, text);
        }
    }
}

void Overlay::refresh() {
    if (session_.game().ended()) {
        symbol_->setIcon(Garden::Icon::arrowClockwise);
        //: Headlines of an ended run: the snake fills the whole board; it struck something.
        title_->setText(session_.game().won() ? tr("Fully grown.")
                                              : tr("A good place to begin again."));
        line_->setText(Garden::withNumber(
            //: %lld is the score; it has to stay.
            tr("You gathered %lld points. Let's grow a little further."), session_.game().score()));
        //: A button; so are "Keep growing" and "Let's grow". An arrow follows the words.
        button_->setText(tr("Grow again"));
    } else if (session_.started()) {
        symbol_->setIcon(Garden::Icon::moon);
        //: The headline of the pause.
        title_->setText(tr("No rush."));
        line_->setText(tr("Your garden will be here when you're ready."));
        button_->setText(tr("Keep growing"));
    } else {
        symbol_->setIcon(Garden::Icon::leaf);
        //: The headline before the first run.
        title_->setText(tr("Find your flow."));
        line_->setText(tr("Gather the fruit. Grow a little longer. Stay curious."));
        button_->setText(tr("Let's grow"));
    }
}
