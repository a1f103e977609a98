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

}  // namespace SnakeCore
