#pragma once

#include <random>

#include "SnakeCore/Game.hpp"
#include "Support/ClosedWalk.hpp"

/// Games for tests and benchmarks of painting.
namespace Games {

/// A game on the usual board with a snake of at least `length` cells.
[[nodiscard]] inline SnakeCore::Game ofLength(std::size_t length) {
    SnakeCore::Game game(28, 22);
    std::mt19937 generator(7);
    // Joins the cycle upwards; a run that joins it downwards would give other benchmark figures.
    game.turn(SnakeCore::Direction::up);
    while (game.snake().size() < length) {
        game.turn(alongCycle(game));
        game.step(generator);
    }
    return game;
}

/// A game whose last step was in `direction`.
[[nodiscard]] inline SnakeCore::Game heading(SnakeCore::Direction direction) {
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
