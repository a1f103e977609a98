#pragma once

#include <QImage>
#include <QPainter>
#include <array>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Raster/Plane.hpp"
#include "Painting/Raster/SampleAxis.hpp"
#include "SnakeCore/Game.hpp"

namespace Painting {

/// The board's picture while the snake does not move: a Gaussian blur of 5 points, at opacity 0.4
/// over the board's plain fill. Outside its edges the picture is treated as plain fill. It is kept
/// at a fraction of its size and enlarged when it is painted.
class IdlePicture {
public:
    /// `game` is as large as the grid.
    IdlePicture(const SnakeCore::Game& game, const PixelGrid& grid);

    /// Paints the pixels of `area` at the same coordinates of the painter.
    void paint(QPainter& painter, const QRect& area) const;
    /// The whole picture.
    [[nodiscard]] QImage image() const;

private:
    IdlePicture(const SnakeCore::Game& game, const PixelGrid& grid, int step);

    class Rows;

    QRect bounds_;
    // Red, green and blue, as differences from the plain fill: the blur takes zeros beyond the
    // edges.
    std::array<Plane<float>, 3> planes_;
    SampleAxis columns_;
    SampleAxis rows_;
};

}  // namespace Painting
