#include "Painting/Board/BoardGeometry.hpp"

#include <algorithm>

BoardGeometry fitBoard(const QRectF& space) {
    const double cell =
        std::min(space.width() / BoardGeometry::columns, space.height() / BoardGeometry::rows);
    QRectF frame(0, 0, BoardGeometry::columns * cell, BoardGeometry::rows * cell);
    frame.moveCenter(space.center());
    return {cell, frame};
}
