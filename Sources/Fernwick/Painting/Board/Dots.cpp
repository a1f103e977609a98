#include "Painting/Board/Dots.hpp"

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

void Dots::paint(QImage& picture, const QRect& area) const {
    const QRect cells = grid_.cellsAt(area);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            dots_.at(column, row).paint(picture, area);
        }
    }
}

}  // namespace Painting
