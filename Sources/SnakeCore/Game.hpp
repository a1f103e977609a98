#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <optional>
#include <random>

#include "SnakeCore/Cell.hpp"
#include "SnakeCore/Detail/Occupancy.hpp"
#include "SnakeCore/Direction.hpp"

namespace SnakeCore {

/// One run of the snake game and its rules: a copyable value without clock, input or output.
///
/// Invariants: every cell of the snake lies on the board and no two are equal; the fruit lies on
/// the board and, until the run is won, not on the snake.
class Game {
public:
    /// A new run: a snake of four cells in the middle row, heading right, and the first fruit at a
    /// fixed place ahead of it. Aborts if `width` is below 6, `height` below 4, or their product
    /// overflows. Memory is one bit per cell plus the snake; throws `std::bad_alloc` or
    /// `std::length_error` if that cannot be allocated.
    Game(std::int64_t width, std::int64_t height);

    /// Queues a turn; each step takes one from the queue. Ignored if two turns are already queued,
    /// or if it repeats or reverses the direction that the snake will have by then.
    void turn(Direction direction);

    /// Advances the snake by one cell; no effect once the run has ended. A new fruit is placed
    /// with `std::random_device`.
    void step();

    /// The same, but places the fruit with the caller's generator, for tests and simulations.
    template <std::uniform_random_bit_generator Generator>
    void step(Generator& generator) {
        if (advance()) {
            std::uniform_int_distribution<std::int64_t> index(0, taken_.freeCount() - 1);
            food_ = taken_.freeCell(index(generator));
        }
    }

    /// Number of columns; `x` runs from 0 to `width() - 1`.
    [[nodiscard]] std::int64_t width() const { return width_; }
    /// Number of rows; `y` runs from 0 to `height() - 1`.
    [[nodiscard]] std::int64_t height() const { return height_; }
    /// The cells of the snake, head first; valid until the game changes.
    [[nodiscard]] const std::deque<Cell>& snake() const { return snake_; }
    /// The direction of the last step; right before the first step.
    [[nodiscard]] Direction direction() const { return direction_; }
    /// The fruit. After a win, the cell where the last fruit was eaten.
    [[nodiscard]] Cell food() const { return food_; }
    /// Ten points per fruit.
    [[nodiscard]] std::int64_t score() const { return score_; }
    /// The snake hit a wall or itself, or the run is won.
    [[nodiscard]] bool ended() const { return ended_; }
    /// The snake fills the board.
    [[nodiscard]] bool won() const { return won_; }

    /// Compares everything, queued turns included.
    friend bool operator==(const Game& left, const Game& right) = default;

private:
    /// Advances by one step. Returns true if the snake ate the fruit and a new one has to be
    /// placed.
    [[nodiscard]] bool advance();
    [[nodiscard]] bool onBoard(Cell cell) const;
    [[nodiscard]] bool hitsBody(Cell head) const;

    std::int64_t width_;
    std::int64_t height_;
    Detail::Occupancy taken_;
    std::deque<Cell> snake_;
    Cell food_;
    std::int64_t score_ = 0;
    /// The turns of the next two steps, so that two quick key presses between steps both count.
    std::array<std::optional<Direction>, 2> turns_;
    Direction direction_ = Direction::right;
    bool ended_ = false;
    bool won_ = false;
};

}  // namespace SnakeCore
