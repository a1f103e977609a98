#pragma once

#include <random>

#include "SnakeCore/Game.hpp"

/// Runs to paint.
namespace Games {

/// The next move on a round tour of the whole board: along the rows without the first column, and
/// back up in that column.
[[nodiscard]] inline SnakeCore::Direction onTour(const SnakeCore::Game& game) {
    using SnakeCore::Direction;
    const SnakeCore::Cell head = game.snake().front();
    Direction next = Direction::up;
    if (head.x == 0) {
        next = head.y > 0 ? Direction::up : Direction::right;
    } else if (head.y % 2 == 0) {
        next = head.x < game.width() - 1 ? Direction::right : Direction::down;
    } else {
        next = head.y < game.height() - 1 && head.x == 1 ? Direction::down : Direction::left;
    }
    return opposite(next, game.direction()) ? Direction::up : next;
}

/// A run of the usual board whose snake has at least `length` cells.
[[nodiscard]] inline SnakeCore::Game ofLength(std::size_t length) {
    SnakeCore::Game game(28, 22);
    std::mt19937 generator(7);
    while (game.snake().size() < length) {
        game.turn(onTour(game));
        game.step(generator);
    }
    return game;
}

/// A run that has just gone in `direction`.
[[nodiscard]] inline SnakeCore::Game going(SnakeCore::Direction direction) {
    SnakeCore::Game game(28, 22);
    if (direction == SnakeCore::Direction::left) {
        game.turn(SnakeCore::Direction::up);
        game.step();
    }
    game.turn(direction);
    game.step();
    return game;
}

}  // namespace Games
