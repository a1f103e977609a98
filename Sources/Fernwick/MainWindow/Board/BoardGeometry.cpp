#include "MainWindow/Board/BoardGeometry.hpp"

#include <algorithm>

namespace {

// The board's shape is fixed and not read from the game.
constexpr double columns = 28;
constexpr double rows = 22;

}  // namespace

BoardGeometry fitBoard(const QRectF& space) {
    const double cell = std::min(space.width() / columns, space.height() / rows);
    QRectF frame(0, 0, columns * cell, rows * cell);
    frame.moveCenter(space.center());
    return {cell, frame};
}
