#include "Painting/Board/BandMask.hpp"

#include <algorithm>

#include "Painting/Board/BandShape.hpp"
#include "Painting/Raster/Coverage.hpp"

BandMask::BandMask(const PixelGrid& grid) : grid_(grid), bytes_(offset(0, grid.size.height())) {}

void BandMask::setTile(int column, int row, Links links) {
    const QRect tile = grid_.tiles({column, row, 1, 1});
    const QPointF centre = grid_.centre({column, row});
    const double halfWidth = BandShape::halfWidth * grid_.cell;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        std::uint8_t* const bytes = bytes_.data() + offset(tile.left(), y);
        if (links == Link::none) {
            std::fill_n(bytes, tile.width(), std::uint8_t{0});
            continue;
        }
        for (int x = 0; x < tile.width(); ++x) {
            const QPointF point(tile.left() + x + 0.5 - centre.x(), y + 0.5 - centre.y());
            const double part =
                Coverage::ofSquared(BandShape::squaredDistance(links, point), halfWidth);
            bytes[x] = static_cast<std::uint8_t>(part * 255 + 0.5);
        }
    }
}

std::size_t BandMask::offset(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(grid_.size.width()) +
           static_cast<std::size_t>(x);
}
