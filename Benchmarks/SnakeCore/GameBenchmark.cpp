#include <benchmark/benchmark.h>

#include <cstdint>
#include <limits>
#include <random>

#include "SnakeCore/Detail/Occupancy.hpp"
#include "SnakeCore/Game.hpp"
#include "Support/ClosedWalk.hpp"

namespace SnakeCore {
namespace {

// The snake circles in the upper 28 x 22 cells of a taller board. The rows below hold its starting
// position and a fruit that it never reaches, so that its length does not change.
constexpr std::int64_t columns = 28;
constexpr std::int64_t rows = 48;
constexpr std::int64_t cycleRows = 22;

/// Up from the start to the cycle, then around it endlessly.
Direction nextDirection(Cell head) {
    return head.y >= cycleRows ? Direction::up : alongCycle(head, columns, cycleRows);
}

/// A random bit generator that returns the number it was given, to choose where a fruit appears.
struct FixedGenerator {
    using result_type = std::uint64_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() const { return number; }

    /// Makes a uniform distribution over `count` values choose `index`: the middle of its share of
    /// all numbers.
    void choose(std::int64_t index, std::int64_t count) {
        const result_type share = max() / static_cast<result_type>(count);
        number = static_cast<result_type>(index) * share + share / 2;
    }

    result_type number = 0;
};

/// The snake's cells on a board of `height` rows.
Detail::Occupancy occupancyOf(const Game& game, std::int64_t height) {
    Detail::Occupancy taken(columns, height);
    for (const Cell& cell : game.snake()) {
        taken.take(cell);
    }
    return taken;
}

/// Makes the next fruit, which is placed when the head has moved to `head`, appear at `wanted`.
void placeNextFruit(FixedGenerator& generator, const Game& game, Cell head, Cell wanted) {
    Detail::Occupancy taken = occupancyOf(game, rows);
    taken.take(head);
    std::int64_t index = 0;
    while (taken.freeCell(index) != wanted) {
        ++index;
    }
    generator.choose(index, taken.freeCount());
}

Cell neighbour(Cell cell, Direction direction) {
    const Cell offset = stepVector(direction);
    return {cell.x + offset.x, cell.y + offset.y};
}

/// A snake of `length` cells on the cycle, and the fruit out of its reach.
Game gameOnCycle(std::int64_t length) {
    constexpr Cell outOfReach{columns - 1, rows - 1};
    FixedGenerator generator;
    Game game(columns, rows);
    const auto size = [&game] { return std::ssize(game.snake()); };
    while (length > 4 && size() < length) {
        const Cell head = game.snake().front();
        const Direction direction = game.score() == 0 ? Direction::right : nextDirection(head);
        const Cell next = neighbour(head, direction);
        if (next == game.food()) {
            placeNextFruit(generator, game, next,
                           size() + 1 < length ? neighbour(next, nextDirection(next)) : outOfReach);
        }
        game.turn(direction);
        game.step(generator);
    }
    while (game.snake().back().y >= cycleRows) {
        game.turn(nextDirection(game.snake().front()));
        game.step(generator);
    }
    return game;
}

void step(benchmark::State& state) {
    Game game = gameOnCycle(state.range(0));
    for (auto _ : state) {
        game.turn(nextDirection(game.snake().front()));
        game.step();
    }
    if (game.ended() || std::ssize(game.snake()) != state.range(0)) {
        state.SkipWithError("the run ended or the snake grew");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(step)->Arg(4)->Arg(60)->Arg(600);

void placeFruit(benchmark::State& state) {
    const Detail::Occupancy taken = occupancyOf(gameOnCycle(state.range(0)), cycleRows);
    std::random_device source;
    for (auto _ : state) {
        std::uniform_int_distribution<std::int64_t> index(0, taken.freeCount() - 1);
        benchmark::DoNotOptimize(taken.freeCell(index(source)));
    }
}
BENCHMARK(placeFruit)->Arg(4)->Arg(60)->Arg(600);

void wonGame(benchmark::State& state) {
    std::int64_t steps = 0;
    for (auto _ : state) {
        Game game(columns, cycleRows);
        for (; !game.ended(); ++steps) {
            game.turn(alongCycle(game));
            game.step();
        }
        if (!game.won()) {
            state.SkipWithError("the run was lost");
        }
    }
    state.SetItemsProcessed(steps);
}
BENCHMARK(wonGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace SnakeCore
