#include "Screens/Scores/SheetLayer.hpp"

#include <QMouseEvent>

#include "Garden/Widgets/FocusRing.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/SheetShade.hpp"
#include "Session/Session.hpp"

SheetLayer::SheetLayer(Session& session, QWidget* parent)
    : QWidget(parent), session_(session), shade_(new SheetShade(parent)) {
    hide();
    connect(&session_, &Session::changed, this, &SheetLayer::refresh);
    refresh();
}

void SheetLayer::refresh() {
    if (session_.showingScores() == isVisibleTo(parentWidget())) {
        return;
    }
    if (session_.showingScores()) {
        present();
    } else {
        dismiss();
    }
}

void SheetLayer::present() {
    // Made on first use, so that it does not delay the first frame.
    if (sheet_ == nullptr) {
        sheet_ = new HighScoresView(session_, this);
        // A click beside its controls keeps the focus inside the sheet.
        sheet_->setFocusPolicy(Qt::ClickFocus);
    }
    focusBefore_ = window()->focusWidget();
    placeSheet();
    show();
    raise();
    shade_->appear(*sheet_);
    sheet_->setFocus(Qt::PopupFocusReason);
}

void SheetLayer::dismiss() {
    const bool hadFocus = isAncestorOf(window()->focusWidget());
    Garden::releaseFocus(*this);
    shade_->disappear(*sheet_);
    hide();
    if (hadFocus && !focusBefore_.isNull() && focusBefore_->isVisible()) {
        focusBefore_->setFocus(Qt::PopupFocusReason);
    }
}

void SheetLayer::placeSheet() {
    if (sheet_ == nullptr) {
        return;
    }
    sheet_->adjustSize();
    QRect place(QPoint(), sheet_->size());
    place.moveCenter(rect().center());
    sheet_->setGeometry(place);
}

bool SheetLayer::focusNextPrevChild(bool next) {
    // Follows the focus chain to the next control inside the sheet.
    QWidget* const start = window()->focusWidget();
    QWidget* candidate = start;
    do {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (sheet_->isAncestorOf(candidate) && candidate->isVisible() && candidate->isEnabled() &&
            (candidate->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (candidate != start);
    return false;
}

void SheetLayer::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void SheetLayer::resizeEvent(QResizeEvent*) {
    placeSheet();
}
