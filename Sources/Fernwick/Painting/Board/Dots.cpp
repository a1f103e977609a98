#include "Painting/Board/Dots.hpp"

#include "Garden/Look/Palette.hpp"
#include "Painting/Raster/Coverage.hpp"

namespace {

constexpr double diameter = 1.6;
constexpr double opacity = 0.12;

}  // namespace

Dots::Dots(const PixelGrid& grid) : grid_(grid) {
    const double radius = diameter / 2 * grid.scale;
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column) {
            const QPointF centre = grid.centre({column, row});
            dots_.emplace_back(Coverage::discBounds(centre, radius), [&](int x, int y) {
                return Coverage::ofDisc(centre, radius, x, y) * opacity;
            });
        }
    }
}

void Dots::paint(QImage& picture, const QRect& area) const {
    const QRect cells = grid_.cellsAt(area);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const auto index = static_cast<std::size_t>(row * grid_.columns + column);
            dots_[index].paint(picture, area, Rgb::of(Garden::mint));
        }
    }
}
