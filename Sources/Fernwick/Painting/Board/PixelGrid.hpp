#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include "SnakeCore/Cell.hpp"

namespace Painting {

/// The game's grid on the board's picture. Lengths are in pixels of the picture.
struct PixelGrid {
    /// The size of the picture.
    QSize size;
    /// The top left corner of cell (0, 0) and the edge length of a cell, which may be fractions.
    QPointF origin;
    double cell = 0;
    /// Pixels per point.
    double scale = 1;
    int columns = 0;
    int rows = 0;

    [[nodiscard]] QPointF centre(const SnakeCore::Cell& position) const;

    /// The pixels assigned to a rectangle of cells. The tiles of cells are disjoint and cover the
    /// picture: tiles at the border extend to its edge.
    [[nodiscard]] QRect tiles(const QRect& cells) const;
    /// The cells of the grid that a rectangle of pixels overlaps.
    [[nodiscard]] QRect cellsAt(const QRect& pixels) const;

    friend bool operator==(const PixelGrid&, const PixelGrid&) = default;
};

}  // namespace Painting
