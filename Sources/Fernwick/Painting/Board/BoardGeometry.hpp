#pragma once

#include <QRectF>
#include <QSize>
#include <algorithm>

namespace Painting {

/// The place of the board, in points.
struct BoardGeometry {
    /// Edge length of one grid cell.
    double cell = 0;
    /// A whole number of cells in either direction. Its edges may be fractions.
    QRectF frame;

    friend bool operator==(const BoardGeometry&, const BoardGeometry&) = default;
};

/// The largest board of that many `cells` inside `space`, centred.
[[nodiscard]] inline BoardGeometry fitBoard(const QRectF& space, const QSize& cells) {
    const double cell = std::min(space.width() / cells.width(), space.height() / cells.height());
    QRectF frame(0, 0, cells.width() * cell, cells.height() * cell);
    frame.moveCenter(space.center());
    return {cell, frame};
}

}  // namespace Painting
