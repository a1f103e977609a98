#pragma once

#include <QRectF>
#include <QSize>
#include <algorithm>

namespace Painting {

/// The position and size of the board, in points.
struct BoardGeometry {
    /// Edge length of one grid cell.
    double cell = 0;
    /// A whole number of cells wide and high. Its edges may lie between points.
    QRectF frame;

    friend bool operator==(const BoardGeometry&, const BoardGeometry&) = default;
};

/// The largest board of `cells` columns and rows inside `space`, centred.
[[nodiscard]] inline BoardGeometry fitBoard(const QRectF& space, const QSize& cells) {
    const double cell = std::min(space.width() / cells.width(), space.height() / cells.height());
    QRectF frame(0, 0, cells.width() * cell, cells.height() * cell);
    frame.moveCenter(space.center());
    return {cell, frame};
}

}  // namespace Painting
