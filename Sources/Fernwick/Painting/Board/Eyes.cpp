#include "Painting/Board/Eyes.hpp"

#include "Painting/Raster/Coverage.hpp"

namespace {

// In cells.
constexpr double diameter = 0.11;
constexpr double ahead = 0.15;
constexpr double aside = 0.16;

constexpr double opacity = 0.75;
constexpr Rgb black{};

}  // namespace

Eyes::Eyes(const PixelGrid& grid, const SnakeCore::Game& game) {
    const SnakeCore::Cell step = stepVector(game.direction());
    const QPointF forward(static_cast<double>(step.x), static_cast<double>(step.y));
    const QPointF across(forward.y(), forward.x());
    const QPointF head = grid.centre(game.snake().front());
    const double radius = diameter / 2 * grid.cell;
    const auto eyeAt = [&](double side) {
        const QPointF eye = head + (ahead * forward + side * across) * grid.cell;
        return CoverageLayer(Coverage::discBounds(eye, radius), [&](int x, int y) {
            return Coverage::ofDisc(eye, radius, x, y) * opacity;
        });
    };
    eyes_ = {eyeAt(-aside), eyeAt(aside)};
}

void Eyes::paintRow(quint32* row, int x, int count, int y) const {
    for (const CoverageLayer& eye : eyes_) {
        eye.paintRow(row, x, count, y, black);
    }
}
