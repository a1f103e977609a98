#include "Screens/Main/BoardArea.hpp"

#include <QScrollArea>

#include "Garden/Look/Fonts.hpp"
#include "Garden/Widgets/FocusRing.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Main/Overlay.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Session/Session.hpp"

namespace {

void showCard(QWidget& card, bool shown) {
    if (!shown) {
        Garden::releaseFocus(card);
    }
    card.setVisible(shown);
}

// Lets Tab reach the controls of the cards in the order of their creation, one after the other. By
// default Qt puts controls that are created later at the end of the whole window.
void orderTabStops(const QWidget& cards) {
    // They take the focus only while they scroll, which they do not yet. setTabOrder() ignores
    // widgets that do not take the focus.
    const QList<QScrollArea*> lists = cards.findChildren<QScrollArea*>();
    for (QScrollArea* list : lists) {
        list->setFocusPolicy(Qt::TabFocus);
    }
    QWidget* before = nullptr;
    for (QWidget* widget : cards.findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            QWidget::setTabOrder(before, widget);
            before = widget;
        }
    }
    for (QScrollArea* list : lists) {
        list->setFocusPolicy(Qt::NoFocus);
    }
}

}  // namespace

BoardArea::BoardArea(Session& session, Painting::Backdrop& backdrop, QWidget* parent)
    : QWidget(parent),
      session_(session),
      board_(new Board(backdrop, session.game(), this)),
      overlay_(new Overlay(session, this)) {
    connect(&session_, &Session::changed, this, &BoardArea::refresh);
    refresh();
}

void BoardArea::placeBoard(const Painting::BoardGeometry& inArea, const QPoint& origin,
                           qreal devicePixelRatio) {
    frame_ = inArea.frame.translated(origin);
    const QRect boardRect = inArea.frame.toAlignedRect();
    board_->place({inArea.cell, frame_}, boardRect.translated(origin), devicePixelRatio);
    board_->setGeometry(boardRect);
    overlay_->setGeometry(boardRect);
    if (gameOver_ != nullptr) {
        gameOver_->setGeometry(boardRect);
    }
}

void BoardArea::refresh() {
    const bool ended = session_.game().ended();
    const bool idle = !session_.running();
    if (ended && gameOver_ == nullptr) {
        createGameOver();
    }
    board_->setGame(session_.game());
    board_->setIdle(idle);
    board_->setScrim(!idle ? 0 : ended ? gameOver_->scrim() : Overlay::scrimOpacity);
    showCard(*overlay_, idle && !ended);
    if (gameOver_ != nullptr) {
        showCard(*gameOver_, idle && ended);
    }
}

// When the first run ends, so that it does not delay the first frame.
void BoardArea::createGameOver() {
    // For the names of players.
    Garden::provideSystemFonts();
    gameOver_ = new GameOverView(session_, overlay_->geometry(), this);
    connect(gameOver_, &GameOverView::scrimChanged, this, &BoardArea::refresh);
    orderTabStops(*this);
}

void BoardArea::moveEvent(QMoveEvent*) {
    Q_EMIT placed();
}

void BoardArea::resizeEvent(QResizeEvent*) {
    Q_EMIT placed();
}
