#include "Painting/Board/BandShape.hpp"

#include "Painting/Raster/CoverageLayer.hpp"

void Painting::Band::drawTile(Plane<std::uint8_t>& mask, const PixelGrid& grid, int column, int row,
                              Links links) {
    const QRect tile = grid.tiles({column, row, 1, 1});
    const QPointF centre = grid.centre({column, row});
    const double radius = halfWidth * grid.cell;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        std::uint8_t* const pixels = mask.row(y) + tile.left();
        if (!links) {
            std::fill_n(pixels, tile.width(), std::uint8_t{0});
            continue;
        }
        for (int x = 0; x < tile.width(); ++x) {
            const QPointF point(tile.left() + x + 0.5 - centre.x(), y + 0.5 - centre.y());
            const double coverage = coverageWithin(radius, squaredDistance(links, point));
            pixels[x] = static_cast<std::uint8_t>(coverage * 255 + 0.5);
        }
    }
}
