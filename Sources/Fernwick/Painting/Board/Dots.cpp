#include "Painting/Board/Dots.hpp"

#include "Garden/Look/Palette.hpp"

namespace {

// In points.
constexpr double diameter = 1.6;
constexpr double opacity = 0.12;

}  // namespace

namespace Painting {

Dots::Dots(const PixelGrid& grid) : grid_(grid), dots_(grid.columns, grid.rows) {
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            dots_.at(column, row) = CoverageLayer::disc(Garden::mint, grid.centre({column, row}),
                                                        diameter / 2 * grid.scale, opacity);
        }
    }
}

void Dots::paint(QImage& picture, const QRect& area) const {
    const QRect cells = grid_.cellsAt(area);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            dots_.at(column, row).paint(picture, area);
        }
    }
}

}  // namespace Painting
