#pragma once

#include <QRectF>

/// Where the board stands in the space it is offered; both in points.
struct BoardGeometry {
    // The board's shape is fixed and not read from the game.
    static constexpr int columns = 28;
    static constexpr int rows = 22;

    /// Edge length of one grid cell.
    double cell = 0;
    /// Exactly 28 cells wide and 22 high, centred in the space; its edges may be fractions.
    QRectF frame;

    friend bool operator==(const BoardGeometry&, const BoardGeometry&) = default;
};

/// The largest board that `space` holds.
[[nodiscard]] BoardGeometry fitBoard(const QRectF& space);
