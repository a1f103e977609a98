#include "Painting/Board/Eyes.hpp"

namespace {

// In cells.
constexpr double diameter = 0.11;
constexpr double ahead = 0.15;
constexpr double aside = 0.16;

constexpr double opacity = 0.75;

}  // namespace

std::array<Painting::CoverageLayer, 2> Painting::makeEyes(const PixelGrid& grid,
                                                          const SnakeCore::Game& game) {
    const SnakeCore::Cell step = stepVector(game.direction());
    const QPointF forward(static_cast<double>(step.x), static_cast<double>(step.y));
    const QPointF across(forward.y(), forward.x());
    const QPointF head = grid.centre(game.snake().front());
    const auto eye = [&](double side) {
        return CoverageLayer::disc(Qt::black, head + (ahead * forward + side * across) * grid.cell,
                                   diameter / 2 * grid.cell, opacity);
    };
    return {eye(-aside), eye(aside)};
}
