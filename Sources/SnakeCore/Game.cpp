#include "SnakeCore/Game.hpp"

#include <algorithm>

#include "SnakeCore/Detail/Checked.hpp"

namespace SnakeCore {
namespace {

constexpr std::int64_t leastWidth = 6;
constexpr std::int64_t leastHeight = 4;
constexpr std::int64_t firstFruitDistance = 4;
constexpr std::int64_t pointsPerFruit = 10;

Snake startingSnake(std::int64_t width, std::int64_t height) {
    const Cell head{width / 2, height / 2};
    return {head, {head.x - 1, head.y}, {head.x - 2, head.y}, {head.x - 3, head.y}};
}

}  // namespace

Game::Game(std::int64_t width, std::int64_t height)
    : width_(requireAtLeast(width, leastWidth)),
      height_(requireAtLeast(height, leastHeight)),
      taken_(width, height),
      snake_(startingSnake(width, height)),
      food_{std::min(snake_.front().x + firstFruitDistance, width - 1), snake_.front().y} {
    for (const Cell& cell : snake_) {
        taken_.take(cell);
    }
}

void Game::turn(Direction direction) {
    if (turns_.full()) {
        return;
    }
    const Direction reference = turns_.empty() ? direction_ : turns_.back();
    if (direction != reference && !opposite(direction, reference)) {
        turns_.push(direction);
    }
}

void Game::step() {
    // Made at the first fruit of a thread, not with the game: opening the source costs more than
    // a hundred steps.
    thread_local std::random_device source;
    step(source);
}

Game::Meal Game::advance() {
    if (ended_) {
        return Meal::none;
    }
    if (!turns_.empty()) {
        direction_ = turns_.pop();
    }
    const Cell offset = stepVector(direction_);
    const Cell head{checkedSum(snake_.front().x, offset.x), checkedSum(snake_.front().y, offset.y)};
    if (!onBoard(head) || strikesBody(head)) {
        ended_ = true;
        return Meal::none;
    }
    const bool eats = head == food_;
    if (!eats) {
        taken_.release(snake_.back());
        snake_.popBack();
    }
    snake_.pushFront(head);
    taken_.take(head);
    if (!eats) {
        return Meal::none;
    }
    score_ = checkedSum(score_, pointsPerFruit);
    won_ = ended_ = taken_.freeCount() == 0;
    return won_ ? Meal::none : Meal::eaten;
}

bool Game::onBoard(Cell cell) const {
    return cell.x >= 0 && cell.x < width_ && cell.y >= 0 && cell.y < height_;
}

bool Game::strikesBody(Cell head) const {
    // The tail leaves its cell in the same step. It stays where the snake grows, but then the head
    // is on a fruit, and no fruit lies on the snake.
    return taken_.taken(head) && head != snake_.back();
}

bool operator==(const Game& left, const Game& right) {
    // The taken cells are those of the snake: nothing more to compare.
    return left.width_ == right.width_ && left.height_ == right.height_ &&
           left.snake_ == right.snake_ && left.direction_ == right.direction_ &&
           left.food_ == right.food_ && left.score_ == right.score_ &&
           left.ended_ == right.ended_ && left.won_ == right.won_ && left.turns_ == right.turns_;
}

}  // namespace SnakeCore
