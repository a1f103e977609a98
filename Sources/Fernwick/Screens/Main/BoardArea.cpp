#include "Screens/Main/BoardArea.hpp"

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

}  // namespace

BoardArea::BoardArea(Session& session, Painting::Backdrop& backdrop, QWidget* parent)
    : QWidget(parent),
      session_(session),
      board_(new Board(backdrop, session.game(), this)),
      overlay_(new Overlay(session, this)),
      gameOver_(new GameOverView(session, this)) {
    connect(&session_, &Session::changed, this, &BoardArea::refresh);
    connect(gameOver_, &GameOverView::scrimChanged, this, &BoardArea::refresh);
    refresh();
}

void BoardArea::placeBoard(const Painting::BoardGeometry& inArea, const QPoint& origin,
                           qreal devicePixelRatio) {
    frame_ = inArea.frame.translated(origin);
    const QRect boardRect = inArea.frame.toAlignedRect();
    board_->place({inArea.cell, frame_}, boardRect.translated(origin), devicePixelRatio);
    board_->setGeometry(boardRect);
    overlay_->setGeometry(boardRect);
    gameOver_->setGeometry(boardRect);
}

void BoardArea::paintAhead() {
    board_->paintAhead();
}

void BoardArea::refresh() {
    const bool ended = session_.game().ended();
    const bool idle = !session_.running();
    board_->setGame(session_.game());
    board_->setIdle(idle);
    board_->setScrim(!idle ? 0 : ended ? gameOver_->scrim() : Overlay::scrimOpacity);
    showCard(*overlay_, idle && !ended);
    showCard(*gameOver_, idle && ended);
}

void BoardArea::moveEvent(QMoveEvent*) {
    Q_EMIT placed();
}

void BoardArea::resizeEvent(QResizeEvent*) {
    Q_EMIT placed();
}
