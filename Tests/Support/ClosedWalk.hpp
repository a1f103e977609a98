#pragma once

#include <optional>

#include "Session/GameKey.hpp"
#include "SnakeCore/Game.hpp"

/// A way through every cell of the board and back to its beginning, on which no snake ever meets
/// itself: up the first column, then row by row, to the right in even rows and to the left in odd
/// ones. The number of rows must be even.
[[nodiscard]] inline SnakeCore::Direction alongCycle(const SnakeCore::Game& game) {
    using enum SnakeCore::Direction;
    const SnakeCore::Cell head = game.snake()[0];
    if (head.x == 0) {
        return head.y > 0 ? up : right;
    }
    const bool lastRow = head.y == game.height() - 1;
    if (head.y % 2 == 0) {
        return head.x < game.width() - 1 ? right : down;
    }
    return head.x > 1 || lastRow ? left : down;
}

/// The key that keeps the snake on the cycle, or none while it heads the right way already. A
/// fresh snake heads against the cycle and is led down into the next row first.
[[nodiscard]] inline std::optional<GameKey> turnAlongCycle(const SnakeCore::Game& game) {
    using enum SnakeCore::Direction;
    SnakeCore::Direction next = alongCycle(game);
    if (next == game.direction()) {
        return std::nullopt;
    }
    if (opposite(next, game.direction())) {
        next = down;
    }
    return static_cast<GameKey>(next);
}
