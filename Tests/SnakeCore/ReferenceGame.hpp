#pragma once

#include <algorithm>
#include <deque>
#include <random>
#include <vector>

#include "SnakeCore/Game.hpp"

namespace SnakeCore {

/// A second implementation of the rules in the most obvious way, sharing no code with `Game`, to
/// compare it with.
struct ReferenceGame {
    std::int64_t width;
    std::int64_t height;
    std::deque<Cell> snake;
    Cell food;
    Direction direction = Direction::right;
    std::int64_t score = 0;
    bool ended = false;
    bool won = false;
    std::vector<Direction> pending;

    ReferenceGame(std::int64_t columns, std::int64_t rows) : width(columns), height(rows) {
        for (std::int64_t i = 0; i < 4; ++i) {
            snake.push_back({columns / 2 - i, rows / 2});
        }
        food = {std::min(columns / 2 + 4, columns - 1), rows / 2};
    }

    static Direction reverse(Direction direction) {
        switch (direction) {
            case Direction::up:
                return Direction::down;
            case Direction::down:
                return Direction::up;
            case Direction::left:
                return Direction::right;
            default:
                return Direction::left;
        }
    }

    void turn(Direction wanted) {
        const Direction last = pending.empty() ? direction : pending.back();
        if (pending.size() < 2 && wanted != last && wanted != reverse(last)) {
            pending.push_back(wanted);
        }
    }

    template <typename Generator>
    void step(Generator& generator) {
        if (ended) {
            return;
        }
        if (!pending.empty()) {
            direction = pending.front();
            pending.erase(pending.begin());
        }
        Cell head = snake.front();
        head.x += direction == Direction::right ? 1 : direction == Direction::left ? -1 : 0;
        head.y += direction == Direction::down ? 1 : direction == Direction::up ? -1 : 0;
        const bool eats = head == food;
        std::deque<Cell> obstacles = snake;
        if (!eats) {
            obstacles.pop_back();
        }
        const bool inside = head.x >= 0 && head.x < width && head.y >= 0 && head.y < height;
        if (!inside || std::ranges::count(obstacles, head) > 0) {
            ended = true;
            return;
        }
        snake = obstacles;
        snake.push_front(head);
        if (eats) {
            score += 10;
            placeFruit(generator);
        }
    }

    template <typename Generator>
    void placeFruit(Generator& generator) {
        std::vector<std::vector<bool>> taken(static_cast<std::size_t>(height),
                                             std::vector<bool>(static_cast<std::size_t>(width)));
        for (const Cell& cell : snake) {
            taken[static_cast<std::size_t>(cell.y)][static_cast<std::size_t>(cell.x)] = true;
        }
        std::vector<Cell> free;
        for (std::int64_t y = 0; y < height; ++y) {
            for (std::int64_t x = 0; x < width; ++x) {
                if (!taken[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]) {
                    free.push_back({x, y});
                }
            }
        }
        if (free.empty()) {
            ended = won = true;
            return;
        }
        std::uniform_int_distribution<std::size_t> index(0, free.size() - 1);
        food = free[index(generator)];
    }
};

}  // namespace SnakeCore
