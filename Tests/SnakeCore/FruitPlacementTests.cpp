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

/// Where the second fruit of a run grew, by cell, over many runs on one board.
using Places = std::unordered_map<Cell, std::int64_t>;

/// Straight ahead to the first fruit, over and over; `advance` makes one step.
Places secondFruits(std::int64_t width, std::int64_t height, std::int64_t runs,
                    const std::function<void(Game&)>& advance) {
    Places places;
    for (std::int64_t run = 0; run < runs; ++run) {
        Game game(width, height);
        while (game.score() == 0) {
            advance(game);
        }
        EXPECT_EQ(std::ranges::count(game.snake(), game.food()), 0);
        ++places[game.food()];
    }
    return places;
}

/// Pearson's statistic against equal chances for `cells` cells.
double chiSquare(const Places& places, std::int64_t cells, std::int64_t runs) {
    const double expected = static_cast<double>(runs) / static_cast<double>(cells);
    double sum = static_cast<double>(cells - std::ssize(places)) * expected;
    for (const auto& [cell, count] : places) {
        const double difference = static_cast<double>(count) - expected;
        sum += difference * difference / expected;
    }
    return sum;
}

// After the first fruit the snake is five cells long.
constexpr std::int64_t freeOnSmallest = 6 * 4 - 5;
constexpr std::int64_t freeOnPlayers = 28 * 22 - 5;

// Fair placement exceeds these once in a thousand seeds: 18 and 610 degrees of freedom.
constexpr double rareOnSmallest = 42.3;
constexpr double rareOnPlayers = 724;

/// A source that leaves out the lowest tenth of its range.
struct LopsidedSource {
    using result_type = std::uint64_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() { return std::max(source(), max() / 10); }

    std::mt19937_64 source{1};
};

TEST(FruitPlacement, isEquallyLikelyOnEveryFreeCellOfTheSmallestBoard) {
    constexpr std::int64_t runs = freeOnSmallest * 1000;
    std::mt19937_64 generator(20010101);

    const Places places = secondFruits(6, 4, runs, [&](Game& game) { game.step(generator); });

    EXPECT_EQ(std::ssize(places), freeOnSmallest);
    EXPECT_LT(chiSquare(places, freeOnSmallest, runs), rareOnSmallest);
}

TEST(FruitPlacement, isEquallyLikelyOnEveryFreeCellOfThePlayersBoard) {
    constexpr std::int64_t runs = freeOnPlayers * 60;
    std::mt19937_64 generator(28022);

    const Places places = secondFruits(28, 22, runs, [&](Game& game) { game.step(generator); });

    EXPECT_EQ(std::ssize(places), freeOnPlayers);
    EXPECT_LT(chiSquare(places, freeOnPlayers, runs), rareOnPlayers);
}

TEST(FruitPlacement, isEquallyLikelyOnEveryFreeCellByTheSystemsRandomness) {
    // Fair placement exceeds this less than once in ten thousand million runs of this test.
    constexpr double neverOnSmallest = 90;
    constexpr std::int64_t runs = freeOnSmallest * 500;

    const Places places = secondFruits(6, 4, runs, [](Game& game) { game.step(); });

    EXPECT_EQ(std::ssize(places), freeOnSmallest);
    EXPECT_LT(chiSquare(places, freeOnSmallest, runs), neverOnSmallest);
}

TEST(FruitPlacement, isFoundUnfairByThisMeasureWhenItsSourceIs) {
    constexpr std::int64_t runs = freeOnSmallest * 1000;
    LopsidedSource source;

    const Places places = secondFruits(6, 4, runs, [&](Game& game) { game.step(source); });

    EXPECT_GT(chiSquare(places, freeOnSmallest, runs), 90);
}

TEST(FruitPlacement, takesTheOnlyCellLeft) {
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
