#pragma once

#include <array>
#include <vector>

#include "SnakeCore/Game.hpp"

namespace SnakeCore {

inline constexpr std::array everyDirection{Direction::up, Direction::down, Direction::left,
                                           Direction::right};

using Cells = std::vector<Cell>;

inline Cells cellsOf(const Game& game) {
    return {game.snake().begin(), game.snake().end()};
}

inline void step(Game& game, int count) {
    for (int i = 0; i < count; ++i) {
        game.step();
    }
}

template <typename Generator>
void step(Game& game, int count, Generator& generator) {
    for (int i = 0; i < count; ++i) {
        game.step(generator);
    }
}

/// Steers along one closed path through every cell of a board with an even number of rows, which
/// the starting snake lies on: played for long enough, the run is won.
inline Direction alongTheTour(const Game& game) {
    const Cell head = game.snake().front();
    // The starting row has to be one that is walked to the right.
    const bool mirrored = game.height() / 2 % 2 == 1;
    const std::int64_t row = mirrored ? game.height() - 1 - head.y : head.y;
    const Direction onward = mirrored ? Direction::up : Direction::down;
    const Direction back = mirrored ? Direction::down : Direction::up;
    if (head.x == 0) {
        return row > 0 ? back : Direction::right;
    }
    if (row % 2 == 0) {
        return head.x < game.width() - 1 ? Direction::right : onward;
    }
    return head.x > 1 || row == game.height() - 1 ? Direction::left : onward;
}

}  // namespace SnakeCore
