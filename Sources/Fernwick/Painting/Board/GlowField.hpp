#pragma once

#include <QImage>
#include <cstdint>
#include <vector>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"
#include "Painting/Raster/Upsampling.hpp"

/// The glow around the snake. A blur of a sum is the sum of the blurs, and what the band looks like
/// in one cell depends on that cell's links alone. So the field is a coarse grid of samples, eight
/// to a cell at any size of the board, into which one blurred piece is added for each cell: a step
/// of the snake adds and takes away a handful of pieces, in integers, so that nothing drifts.
class GlowField {
public:
    explicit GlowField(const PixelGrid& grid);

    /// Replaces the piece of one cell.
    void change(int column, int row, Links before, Links after);

    /// The pixels that the piece of one cell reaches to; some may lie beyond the picture.
    [[nodiscard]] QRect reach(int column, int row) const;

    /// Lays the glow over the pixels of `area`.
    void paint(QImage& picture, const QRect& area) const;

private:
    void add(int column, int row, Links links, int sign);

    PixelGrid grid_;
    int stride_;
    std::vector<std::uint16_t> samples_;
    SampleAxis columns_;
    SampleAxis rows_;
};
