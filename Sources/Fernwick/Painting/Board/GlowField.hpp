#pragma once

#include <QRect>
#include <cstdint>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"
#include "Painting/Raster/Upsampling.hpp"

namespace Painting {

/// The glow around the snake: its band, blurred. Blurring is linear, and the band inside a cell
/// depends only on that cell's links. So the glow is the sum of one blurred kernel per cell, added
/// into a coarse grid of eight samples per cell at any size of the board. A step of the snake adds
/// and subtracts a few kernels, in integers so that no rounding error builds up.
class GlowField {
public:
    explicit GlowField(const PixelGrid& grid);

    /// Replaces the kernel of one cell.
    void change(int column, int row, Links before, Links after);

    /// The pixels that the kernel of a cell reaches; some may lie outside of the picture.
    [[nodiscard]] QRect reach(int column, int row) const;

    /// Blends the glow over the rows of one rectangle, from top to bottom.
    class Rows {
    public:
        /// `field` has to outlive this object.
        Rows(const GlowField& field, const QRect& area);
        /// `line` lies in a row of the rectangle.
        void paint(const Scanline& line);

    private:
        const GlowField& field_;
        int left_;
        UpsampledRows<std::uint16_t> samples_;
    };

private:
    PixelGrid grid_;
    Plane<std::uint16_t> samples_;
    SampleAxis columns_;
    SampleAxis rows_;
};

}  // namespace Painting
