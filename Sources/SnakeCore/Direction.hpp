#pragma once

#include "SnakeCore/Cell.hpp"

namespace SnakeCore {

/// The four directions in which the snake can move.
enum class Direction { up, down, left, right };

/// The offset of one step. `y` grows downwards, so `up` is (0, -1).
[[nodiscard]] constexpr Cell stepVector(Direction direction) {
    switch (direction) {
        case Direction::up:
            return {0, -1};
        case Direction::down:
            return {0, 1};
        case Direction::left:
            return {-1, 0};
        case Direction::right:
            return {1, 0};
    }
    __builtin_unreachable();
}

/// Whether the two directions are 180 degrees apart.
[[nodiscard]] constexpr bool opposite(Direction first, Direction second) {
    const Cell a = stepVector(first);
    const Cell b = stepVector(second);
    return a.x == -b.x && a.y == -b.y;
}

}  // namespace SnakeCore
