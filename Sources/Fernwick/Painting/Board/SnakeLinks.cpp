#include "Painting/Board/SnakeLinks.hpp"

Painting::Plane<Painting::Links> Painting::snakeLinks(const SnakeCore::Game& game) {
    Plane<Links> links(static_cast<int>(game.width()), static_cast<int>(game.height()));
    const auto add = [&](const SnakeCore::Cell& cell, Link link) {
        links.at(static_cast<int>(cell.x), static_cast<int>(cell.y)) |= link;
    };
    const auto& snake = game.snake();
    for (std::size_t i = 1; i < snake.size(); ++i) {
        const SnakeCore::Cell& ahead = snake[i - 1];
        const SnakeCore::Cell& behind = snake[i];
        const bool horizontal = ahead.y == behind.y;
        const bool increasing = ahead.x > behind.x || ahead.y > behind.y;
        const Link towardsEnd = horizontal ? Link::right : Link::down;
        const Link towardsOrigin = horizontal ? Link::left : Link::up;
        add(behind, increasing ? towardsEnd : towardsOrigin);
        add(ahead, increasing ? towardsOrigin : towardsEnd);
    }
    return links;
}
