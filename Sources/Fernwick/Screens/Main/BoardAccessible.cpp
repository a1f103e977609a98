#include "Screens/Main/BoardAccessible.hpp"

#include "Screens/Main/Board.hpp"

namespace {

QAccessibleInterface* makeForBoard(const QString&, QObject* object) {
    auto* const board = qobject_cast<Board*>(object);
    return board != nullptr ? new BoardAccessible(board) : nullptr;
}

}  // namespace

BoardAccessible::BoardAccessible(Board* board) : QAccessibleWidget(board, QAccessible::Graphic) {}

void BoardAccessible::install() {
    // Installing the same factory again does nothing.
    QAccessible::installFactory(makeForBoard);
}
