#pragma once

#include <cstdint>
#include <vector>

#include "Painting/Board/PixelGrid.hpp"
#include "Painting/Board/SnakeLinks.hpp"

/// How much of each pixel the snake's band covers: a byte a pixel.
class BandMask {
public:
    explicit BandMask(const PixelGrid& grid);

    /// Replaces what the tile of one cell holds.
    void setTile(int column, int row, Links links);

    /// The bytes of one row of pixels.
    [[nodiscard]] const std::uint8_t* row(int y) const { return bytes_.data() + offset(0, y); }

private:
    [[nodiscard]] std::size_t offset(int x, int y) const;

    PixelGrid grid_;
    std::vector<std::uint8_t> bytes_;
};
