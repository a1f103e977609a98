#pragma once

#include "SnakeCore/Cell.hpp"

namespace SnakeCore {

/// The four ways the snake can move.
enum class Direction { up, down, left, right };

/// The cell offset of one step; `up` is towards smaller rows.
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

/// True when the two point in exactly opposite ways.
[[nodiscard]] constexpr bool opposite(Direction self, Direction other) {
    const Cell mine = stepVector(self);
    const Cell theirs = stepVector(other);
    return mine.x == -theirs.x && mine.y == -theirs.y;
}

}  // namespace SnakeCore
