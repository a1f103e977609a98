#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

#include "SnakeCore/Cell.hpp"

/// The game's grid laid over a picture; every measure is in pixels of that picture.
struct PixelGrid {
    /// The picture.
    QSize size;
    /// The exact frame, that is the corner of cell (0, 0) and the edge length of a cell.
    QPointF origin;
    double cell = 0;
    /// Pixels to a point.
    double scale = 1;
    int columns = 0;
    int rows = 0;

    [[nodiscard]] QPointF centre(const SnakeCore::Cell& place) const;

    /// The pixels that belong to the cells of a rectangle of the grid. Tiles share no pixel, and
    /// together they fill the picture: those at the border reach to its edge.
    [[nodiscard]] QRect tiles(const QRect& cells) const;
    /// The cells of the grid that reach into a rectangle of pixels.
    [[nodiscard]] QRect cellsAt(const QRect& pixels) const;

    friend bool operator==(const PixelGrid&, const PixelGrid&) = default;
};
