#include "Screens/Scores/NameEntry.hpp"

#include <QShowEvent>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Look/Palette.hpp"
#include "Garden/Widgets/Accessibility.hpp"
#include "Garden/Widgets/GardenButton.hpp"
#include "Garden/Widgets/Layout.hpp"
#include "Garden/Widgets/QuietButton.hpp"
#include "Garden/Widgets/TrackedLabel.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Session/Session.hpp"
#include "SnakeCore/HighScores.hpp"

namespace {

constexpr int spacing = 14;
constexpr double promptSize = 14;
constexpr double hintSize = 10;
constexpr double skipSize = 12;
// Of "Skip saving", around its text: room for the focus ring, and a larger target to click.
constexpr QSize skipPadding(8, 3);

QString hint() {
#ifdef Q_OS_MACOS
    return NameEntry::tr("Up to 24 characters · saved on this Mac");
#else
    return NameEntry::tr("Up to 24 characters · saved on this computer");
#endif
}

}  // namespace

NameEntry::NameEntry(Session& session, QWidget* parent)
    : QWidget(parent),
      session_(session),
      field_(new NameField(this)),
      save_(new Garden::GardenButton(tr("Save score"), this)) {
    //: Shown in the empty field.
    field_->setPlaceholderText(tr("Your name"));
    field_->setAccessibleName(tr("Player name"));
    // Otherwise the placeholder would be, which is the name in other words.
    field_->setAccessibleDescription(Garden::spoken(hint()));
    auto* skip = new Garden::QuietButton(tr("Skip saving"), Garden::sans(skipSize, QFont::Normal),
                                         skipPadding);

    auto* column = Garden::layOut<QVBoxLayout>(this, spacing);
    column->addWidget(
        new Garden::TrackedLabel(tr("Leave your name in the garden."),
                                 Garden::sans(promptSize, QFont::Normal), Garden::muted),
        0, Qt::AlignHCenter);
    column->addWidget(field_);
    column->addWidget(
        new Garden::TrackedLabel(hint(), Garden::sans(hintSize, QFont::Normal), Garden::muted), 0,
        Qt::AlignHCenter);
    // The padding above the text is part of the spacing.
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(spacing - skipPadding.height());
    buttons->addWidget(save_, 0, Qt::AlignHCenter);
    buttons->addWidget(skip, 0, Qt::AlignHCenter);
    column->addLayout(buttons);

    connect(field_, &QLineEdit::textChanged, &session_, &Session::editName);
    connect(field_, &QLineEdit::returnPressed, &session_, &Session::saveScore);
    connect(save_, &QAbstractButton::clicked, &session_, &Session::saveScore);
    connect(skip, &QAbstractButton::clicked, &session_, &Session::skipSaving);
    refresh();
}

void NameEntry::refresh() {
    if (field_->text() != session_.playerName()) {
        // If the field shortens the name, it signals that, and the session gets the short name.
        field_->setText(session_.playerName());
    }
    const std::string name = session_.playerName().toStdString();
    save_->setEnabled(!SnakeCore::HighScores::cleanName(name).empty());
}

void NameEntry::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    field_->setFocus(Qt::OtherFocusReason);
    // Spontaneous: the window was minimised, and the player may have typed before.
    if (!event->spontaneous()) {
        field_->selectAll();
    }
}
