#include "Painting/Board/Dots.hpp"

#include <algorithm>
#include <cmath>

#include "Garden/Look/Palette.hpp"

namespace {

// In points.
constexpr double diameter = 1.6;
constexpr double opacity = 0.12;
/// Device pixels per point from which dots look the same at any position on the pixels.
constexpr double fineScale = 2;

// Below `fineScale`, dots at different positions on the pixels would form a visible pattern of
// sharp and blurred ones: they all get a pixel's middle.
QPointF dotCentre(const QPointF& centre, double scale) {
    if (scale >= fineScale) {
        return centre;
    }
    return {std::floor(centre.x()) + 0.5, std::floor(centre.y()) + 0.5};
}

}  // namespace

namespace Painting {

Dots::Dots(const PixelGrid& grid) : grid_(grid), dots_(grid.columns, grid.rows) {
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            dots_.at(column, row) =
                CoverageLayer::disc(Garden::mint, dotCentre(grid.centre({column, row}), grid.scale),
                                    diameter / 2 * grid.scale, opacity);
        }
    }
}

void Dots::paint(const Scanline& line) const {
    // Dots lie in the middle of their cells, so most rows of pixels touch none.
    const double middle = (line.y + 0.5 - grid_.origin.y()) / grid_.cell;
    const int row = std::clamp(static_cast<int>(std::floor(middle)), 0, grid_.rows - 1);
    const QRect bounds = dots_.at(0, row).bounds();
    if (line.y < bounds.top() || line.y > bounds.bottom()) {
        return;
    }
    const QRect cells = grid_.cellsAt({line.x, line.y, line.count, 1});
    for (int column = cells.left(); column <= cells.right(); ++column) {
        dots_.at(column, row).paint(line);
    }
}

}  // namespace Painting
