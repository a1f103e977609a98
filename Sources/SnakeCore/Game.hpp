#pragma once

#include <cstdint>
#include <random>

#include "SnakeCore/Cell.hpp"
#include "SnakeCore/Direction.hpp"
#include "SnakeCore/Occupancy.hpp"
#include "SnakeCore/Snake.hpp"
#include "SnakeCore/TurnQueue.hpp"

namespace SnakeCore {

/// One run of the snake game and the rules that advance it: a plain value that knows nothing of
/// time, drawing or keys. While the run is live every cell of the snake lies on the board, no two
/// are equal, and the fruit lies on the board and off the snake.
class Game {
public:
    /// A fresh run: four cells in the middle row, heading right, the first fruit always in the same
    /// place ahead. The program stops if `width` is below 6 or `height` below 4, or if the board
    /// has more cells than an `std::int64_t` can count. It keeps one bit a cell and throws
    /// `std::bad_alloc` or `std::length_error` when there is no memory for that.
    Game(std::int64_t width, std::int64_t height);

    /// Asks for a turn at a later step. Dropped when two are pending already, and when it repeats
    /// or reverses the direction that will hold by then.
    void turn(Direction direction);

    /// Advances the run by one cell; nothing happens once it has ended. A new fruit comes from the
    /// system's source of randomness.
    void step();

    /// The same, with the caller's generator deciding where a new fruit grows.
    template <std::uniform_random_bit_generator Generator>
    void step(Generator& generator) {
        if (advance() == Meal::eaten) {
            std::uniform_int_distribution<std::int64_t> index(0, taken_.freeCount() - 1);
            food_ = taken_.freeCell(index(generator));
        }
    }

    /// Columns; `x` runs from 0 to `width() - 1`.
    [[nodiscard]] std::int64_t width() const { return width_; }
    /// Rows; `y` runs from 0 to `height() - 1`.
    [[nodiscard]] std::int64_t height() const { return height_; }
    /// The cells of the snake, head first; valid until the game changes.
    [[nodiscard]] const Snake& snake() const { return snake_; }
    /// The direction of the last step, or of the first one to come.
    [[nodiscard]] Direction direction() const { return direction_; }
    /// The fruit; under the head once the run is won.
    [[nodiscard]] Cell food() const { return food_; }
    /// Ten points a fruit.
    [[nodiscard]] std::int64_t score() const { return score_; }
    [[nodiscard]] bool ended() const { return ended_; }
    /// The run ended because the snake fills the board.
    [[nodiscard]] bool won() const { return won_; }

    /// Equal games look the same and have the same turns pending.
    friend bool operator==(const Game& left, const Game& right);

private:
    /// What a step means for the fruit: `eaten` asks for a new one.
    enum class Meal { none, eaten };

    [[nodiscard]] Meal advance();
    [[nodiscard]] bool onBoard(Cell cell) const;
    [[nodiscard]] bool strikesBody(Cell head) const;

    std::int64_t width_;
    std::int64_t height_;
    Occupancy taken_;
    Snake snake_;
    Cell food_;
    std::int64_t score_ = 0;
    TurnQueue turns_;
    Direction direction_ = Direction::right;
    bool ended_ = false;
    bool won_ = false;
};

}  // namespace SnakeCore
