#pragma once

#include <cstdint>

#include "SnakeCore/Game.hpp"

namespace SnakeCore {

/// The way out of `cell` along a Hamiltonian cycle, a closed walk that visits each of
/// `width` x `height` cells once: up the first column, then row by row through the other columns,
/// rightwards in even rows and leftwards in odd ones. `height` must be even.
[[nodiscard]] constexpr Direction alongCycle(Cell cell, std::int64_t width, std::int64_t height) {
    using enum Direction;
    if (cell.x == 0) {
        return cell.y > 0 ? up : right;
    }
    if (cell.y % 2 == 0) {
        return cell.x < width - 1 ? right : down;
    }
    return cell.x > 1 || cell.y == height - 1 ? left : down;
}

/// The turn that keeps the snake on that cycle. A snake that follows it from the start never hits
/// anything and in the end wins. Where a new snake heads against the cycle, it first turns down.
[[nodiscard]] inline Direction alongCycle(const Game& game) {
    const Direction next = alongCycle(game.snake().front(), game.width(), game.height());
    return opposite(next, game.direction()) ? Direction::down : next;
}

}  // namespace SnakeCore
