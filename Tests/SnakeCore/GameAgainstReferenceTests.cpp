#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <random>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"
#include "SnakeCore/ReferenceGame.hpp"
#include "Support/ClosedWalk.hpp"

namespace SnakeCore {
namespace {

::testing::AssertionResult agree(const Game& game, const ReferenceGame& reference) {
    const bool same = game.width() == reference.width && game.height() == reference.height &&
                      std::ranges::equal(game.snake(), reference.snake) &&
                      game.direction() == reference.direction && game.food() == reference.food &&
                      game.score() == reference.score && game.ended() == reference.ended &&
                      game.won() == reference.won;
    return same ? ::testing::AssertionSuccess()
                : ::testing::AssertionFailure()
                      << "length " << game.snake().size() << " and " << reference.snake.size()
                      << ", score " << game.score() << " and " << reference.score << ", food ("
                      << game.food().x << ", " << game.food().y << ") and (" << reference.food.x
                      << ", " << reference.food.y << ")";
}

Direction randomDirection(std::mt19937_64& generator) {
    return everyDirection[generator() % everyDirection.size()];
}

/// The free neighbour nearest to the fruit: a player that survives long enough to grow.
Direction towardsFood(const ReferenceGame& game) {
    Direction best = game.direction;
    std::int64_t least = std::numeric_limits<std::int64_t>::max();
    for (const Direction direction : everyDirection) {
        const Cell offset = stepVector(direction);
        const Cell next{game.snake[0].x + offset.x, game.snake[0].y + offset.y};
        const bool open = next.x >= 0 && next.x < game.width && next.y >= 0 &&
                          next.y < game.height && std::ranges::count(game.snake, next) == 0;
        const std::int64_t distance =
            std::abs(next.x - game.food.x) + std::abs(next.y - game.food.y);
        if (open && distance < least) {
            least = distance;
            best = direction;
        }
    }
    return best;
}

/// Plays one run on a board of random size, with a random share of random turns. Returns the number
/// of fruits eaten.
std::int64_t compareOneRun(std::uint64_t seed) {
    constexpr int maximumSteps = 400;
    std::mt19937_64 playerGenerator(seed);
    std::mt19937_64 generator(seed + 1);
    std::mt19937_64 referenceGenerator(seed + 1);
    const auto width = static_cast<std::int64_t>(6 + playerGenerator() % 35);
    const auto height = static_cast<std::int64_t>(4 + playerGenerator() % 27);
    const std::uint64_t randomShare = 1 + playerGenerator() % 60;
    Game game(width, height);
    ReferenceGame reference(width, height);
    for (int i = 0; i < maximumSteps && !reference.ended; ++i) {
        const bool playsAtRandom = playerGenerator() % 60 < randomShare;
        const int turns = playsAtRandom ? static_cast<int>(playerGenerator() % 4) : 1;
        for (int turn = 0; turn < turns; ++turn) {
            const Direction wanted =
                playsAtRandom ? randomDirection(playerGenerator) : towardsFood(reference);
            game.turn(wanted);
            reference.turn(wanted);
        }
        game.step(generator);
        reference.step(referenceGenerator);
        const auto verdict = agree(game, reference);
        EXPECT_TRUE(verdict) << width << " by " << height << ", seed " << seed << ", step " << i;
        if (!verdict) {
            break;
        }
    }
    return reference.score / 10;
}

TEST(GameAgainstReference, agreesInTenThousandRandomRunsOnBoardsFrom6By4To40By30) {
    constexpr std::uint64_t runs = 10'000;
    std::int64_t fruits = 0;
    for (std::uint64_t seed = 0; seed < runs && !HasFailure(); ++seed) {
        fruits += compareOneRun(seed);
    }

    EXPECT_GT(fruits, static_cast<std::int64_t>(runs)) << "the players hardly ever reach a fruit";
}

void compareAWonRun(std::int64_t width, std::int64_t height) {
    std::mt19937_64 generator(7);
    std::mt19937_64 referenceGenerator(7);
    Game game(width, height);
    ReferenceGame reference(width, height);
    while (!reference.ended) {
        const Direction wanted = alongCycle(game);
        game.turn(wanted);
        reference.turn(wanted);
        game.step(generator);
        reference.step(referenceGenerator);
        ASSERT_TRUE(agree(game, reference));
    }
    EXPECT_TRUE(reference.won);
    EXPECT_EQ(reference.snake.size(), static_cast<std::size_t>(width * height));
}

TEST(GameAgainstReference, agreesInWonRunsOnSmallBoards) {
    compareAWonRun(6, 4);
    compareAWonRun(7, 6);
    compareAWonRun(13, 10);
}

TEST(GameAgainstReference, agreesInAWonRunOnA28By22Board) {
    compareAWonRun(28, 22);
}

}  // namespace
}  // namespace SnakeCore
