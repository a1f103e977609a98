#include "SnakeCore/Game.hpp"

#include <algorithm>
#include <utility>

#include "SnakeCore/Detail/Checked.hpp"

namespace SnakeCore {
namespace {

constexpr std::int64_t minimumWidth = 6;
constexpr std::int64_t minimumHeight = 4;
constexpr std::int64_t startingLength = 4;
constexpr std::int64_t firstFruitDistance = 4;
constexpr std::int64_t pointsPerFruit = 10;

}  // namespace

Game::Game(std::int64_t width, std::int64_t height)
    : width_(Detail::requireAtLeast(width, minimumWidth)),
      height_(Detail::requireAtLeast(height, minimumHeight)),
      taken_(width, height),
      food_{std::min(width / 2 + firstFruitDistance, width - 1), height / 2} {
    for (std::int64_t i = 0; i < startingLength; ++i) {
        taken_.take(snake_.emplace_back(Cell{width / 2 - i, height / 2}));
    }
}

void Game::turn(Direction direction) {
    auto& [next, afterNext] = turns_;
    const Direction reference = next.value_or(direction_);
    if (!afterNext && direction != reference && !opposite(direction, reference)) {
        (next ? afterNext : next) = direction;
    }
}

void Game::step() {
    // Constructing one takes longer than a hundred steps, so keep one per thread.
    thread_local std::random_device source;
    step(source);
}

bool Game::advance() {
    if (ended_) {
        return false;
    }
    auto& [next, afterNext] = turns_;
    direction_ = next.value_or(direction_);
    next = std::exchange(afterNext, std::nullopt);
    const Cell offset = stepVector(direction_);
    const Cell head{Detail::checkedSum(snake_.front().x, offset.x),
                    Detail::checkedSum(snake_.front().y, offset.y)};
    if (!onBoard(head) || hitsBody(head)) {
        ended_ = true;
        return false;
    }
    const bool eats = head == food_;
    if (!eats) {
        taken_.release(snake_.back());
        snake_.pop_back();
    }
    snake_.push_front(head);
    taken_.take(head);
    if (!eats) {
        return false;
    }
    score_ = Detail::checkedSum(score_, pointsPerFruit);
    won_ = ended_ = taken_.freeCount() == 0;
    return !won_;
}

bool Game::onBoard(Cell cell) const {
    return cell.x >= 0 && cell.x < width_ && cell.y >= 0 && cell.y < height_;
}

bool Game::hitsBody(Cell head) const {
    // The tail's cell becomes free in the same step, so the head may enter it. The tail stays only
    // when the snake eats, and the fruit is never on the tail.
    return taken_.taken(head) && head != snake_.back();
}

}  // namespace SnakeCore
