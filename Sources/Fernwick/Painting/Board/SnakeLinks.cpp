#include "Painting/Board/SnakeLinks.hpp"

std::vector<Links> snakeLinks(const SnakeCore::Game& game) {
    std::vector<Links> links(static_cast<std::size_t>(game.width() * game.height()), Link::none);
    const auto at = [&](const SnakeCore::Cell& cell) -> Links& {
        return links[static_cast<std::size_t>(cell.y * game.width() + cell.x)];
    };
    const auto join = [&](const SnakeCore::Cell& cell, Links way) {
        at(cell) = static_cast<Links>(at(cell) | way);
    };
    const auto& snake = game.snake();
    for (std::size_t i = 1; i < snake.size(); ++i) {
        const SnakeCore::Cell& ahead = snake[i - 1];
        const SnakeCore::Cell& behind = snake[i];
        const bool level = ahead.y == behind.y;
        const bool onward = ahead.x > behind.x || ahead.y > behind.y;
        const Links low = level ? Link::right : Link::down;
        const Links high = level ? Link::left : Link::up;
        join(behind, onward ? low : high);
        join(ahead, onward ? high : low);
    }
    return links;
}
