#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <unordered_map>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"
#include "Support/ClosedWalk.hpp"

namespace SnakeCore {
namespace {

/// How often the second fruit of a run was placed on each cell.
using Counts = std::unordered_map<Cell, std::int64_t>;

/// Plays many runs straight ahead to the first fruit; `advance` makes one step.
Counts secondFruits(std::int64_t width, std::int64_t height, std::int64_t runs,
                    const std::function<void(Game&)>& advance) {
    Counts counts;
    for (std::int64_t run = 0; run < runs; ++run) {
        Game game(width, height);
        while (game.score() == 0) {
            advance(game);
        }
        EXPECT_EQ(std::ranges::count(game.snake(), game.food()), 0);
        ++counts[game.food()];
    }
    return counts;
}

/// Pearson's chi-square statistic against the uniform distribution over `cells` cells.
double chiSquare(const Counts& counts, std::int64_t cells, std::int64_t runs) {
    const double expected = static_cast<double>(runs) / static_cast<double>(cells);
    double sum = static_cast<double>(cells - std::ssize(counts)) * expected;
    for (const auto& [cell, count] : counts) {
        const double difference = static_cast<double>(count) - expected;
        sum += difference * difference / expected;
    }
    return sum;
}

// After the first fruit the snake is five cells long.
constexpr std::int64_t freeOnSmallest = 6 * 4 - 5;
constexpr std::int64_t freeOn28By22 = 28 * 22 - 5;

// The 99.9th percentiles of the chi-square distribution with 18 and 610 degrees of freedom.
constexpr double limitOnSmallest = 42.3;
constexpr double limitOn28By22 = 724;

/// A generator that never returns a number in the lowest tenth of its range.
struct BiasedGenerator {
    using result_type = std::uint64_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() { return std::max(engine(), max() / 10); }

    std::mt19937_64 engine{1};
};

TEST(FruitPlacement, isUniformOnTheSmallestBoard) {
    constexpr std::int64_t runs = freeOnSmallest * 1000;
    std::mt19937_64 generator(20010101);

    const Counts counts = secondFruits(6, 4, runs, [&](Game& game) { game.step(generator); });

    EXPECT_EQ(std::ssize(counts), freeOnSmallest);
    EXPECT_LT(chiSquare(counts, freeOnSmallest, runs), limitOnSmallest);
}

TEST(FruitPlacement, isUniformOnA28By22Board) {
    constexpr std::int64_t runs = freeOn28By22 * 60;
    std::mt19937_64 generator(28022);

    const Counts counts = secondFruits(28, 22, runs, [&](Game& game) { game.step(generator); });

    EXPECT_EQ(std::ssize(counts), freeOn28By22);
    EXPECT_LT(chiSquare(counts, freeOn28By22, runs), limitOn28By22);
}

TEST(FruitPlacement, isUniformWithRandomDevice) {
    // Uniform placement exceeds this in fewer than one of 10^10 runs of this test.
    constexpr double limit = 90;
    constexpr std::int64_t runs = freeOnSmallest * 500;

    const Counts counts = secondFruits(6, 4, runs, [](Game& game) { game.step(); });

    EXPECT_EQ(std::ssize(counts), freeOnSmallest);
    EXPECT_LT(chiSquare(counts, freeOnSmallest, runs), limit);
}

TEST(FruitPlacement, failsTheChiSquareTestWithABiasedGenerator) {
    constexpr std::int64_t runs = freeOnSmallest * 1000;
    BiasedGenerator generator;

    const Counts counts = secondFruits(6, 4, runs, [&](Game& game) { game.step(generator); });

    EXPECT_GT(chiSquare(counts, freeOnSmallest, runs), 90);
}

TEST(FruitPlacement, usesTheLastFreeCell) {
    std::mt19937_64 generator(5);
    Game game(6, 4);
    while (game.snake().size() < 23) {
        game.turn(alongCycle(game));
        game.step(generator);
    }

    EXPECT_FALSE(game.ended());
    EXPECT_EQ(std::ranges::count(game.snake(), game.food()), 0);
    EXPECT_TRUE(game.food().x >= 0 && game.food().x < 6 && game.food().y >= 0 && game.food().y < 4);
}

}  // namespace
}  // namespace SnakeCore
