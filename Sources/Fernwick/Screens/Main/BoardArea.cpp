#include "Screens/Main/BoardArea.hpp"

#include "Garden/Widgets/Focus.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Main/Overlay.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Session/Session.hpp"

namespace {

// Each is a constant of a room that does not know the other.
static_assert(BoardGeometry::columns == Session::columns && BoardGeometry::rows == Session::rows);

void showCard(QWidget& card, bool shown) {
    if (!shown) {
        Garden::releaseFocus(card);
    }
    card.setVisible(shown);
}

}  // namespace

BoardArea::BoardArea(Session& session, Backdrop& backdrop, QWidget* parent)
    : QWidget(parent),
      session_(session),
      board_(new Board(backdrop, this)),
      overlay_(new Overlay(session, this)),
      gameOver_(new GameOverView(session, this)) {
    connect(&session_, &Session::changed, this, &BoardArea::refresh);
    refresh();
}

QRectF BoardArea::frame() const {
    return Board::fit(rect()).frame;
}

void BoardArea::refresh() {
    const bool ended = session_.game().ended();
    const bool idle = !session_.running();
    board_->setGame(session_.game());
    board_->setIdle(idle);
    board_->setScrim(!idle ? 0 : ended ? GameOverView::scrimOpacity : Overlay::scrimOpacity);
    showCard(*overlay_, idle && !ended);
    showCard(*gameOver_, idle && ended);
}

void BoardArea::resizeEvent(QResizeEvent*) {
    const QRect place = frame().toAlignedRect();
    board_->setGeometry(place);
    overlay_->setGeometry(place);
    gameOver_->setGeometry(place);
}
