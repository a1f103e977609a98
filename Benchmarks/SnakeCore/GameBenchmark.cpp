#include <benchmark/benchmark.h>

#include <cstdint>
#include <limits>
#include <random>

#include "SnakeCore/Game.hpp"
#include "SnakeCore/Detail/Occupancy.hpp"
#include "SnakeCore/Playing.hpp"

namespace SnakeCore {
namespace {

// The closed way of 28 by 22 cells is the upper part of a higher board; below it there is room for
// the start and for a fruit that is never reached.
constexpr std::int64_t columns = 28;
constexpr std::int64_t rows = 48;
constexpr std::int64_t wayRows = 22;

/// Up from the start to the way, then round it for ever.
Direction alongTheWay(Cell head) {
    if (head.y >= wayRows) {
        return Direction::up;
    }
    if (head.x == 0) {
        return head.y > 0 ? Direction::up : Direction::right;
    }
    if (head.y % 2 == 0) {
        return head.x < columns - 1 ? Direction::right : Direction::down;
    }
    return head.x > 1 || head.y == wayRows - 1 ? Direction::left : Direction::down;
}

/// A source of chance that makes the fruit grow where it is told to.
struct Gardener {
    using result_type = std::uint64_t;
    static constexpr result_type min() { return 0; }
    static constexpr result_type max() { return std::numeric_limits<result_type>::max(); }
    result_type operator()() const { return number; }

    /// Chooses the free cell at `index` among `count`: the middle of its share of all numbers.
    void choose(std::int64_t index, std::int64_t count) {
        const result_type share = max() / static_cast<result_type>(count);
        number = static_cast<result_type>(index) * share + share / 2;
    }

    result_type number = 0;
};

/// The place of `wanted` among the free cells once `head` has moved there too.
void plant(Gardener& gardener, const Game& game, Cell head, Cell wanted) {
    Detail::Occupancy taken(game.width(), game.height());
    for (const Cell& cell : game.snake()) {
        taken.take(cell);
    }
    taken.take(head);
    std::int64_t index = 0;
    while (taken.freeCell(index) != wanted) {
        ++index;
    }
    gardener.choose(index, taken.freeCount());
}

Cell ahead(Cell head, Direction direction) {
    const Cell offset = stepVector(direction);
    return {head.x + offset.x, head.y + offset.y};
}

/// A snake of `length` cells on the way, and no fruit there.
Game gameOnTheWay(std::int64_t length) {
    constexpr Cell outOfReach{columns - 1, rows - 1};
    Gardener gardener;
    Game game(columns, rows);
    const auto size = [&game] { return static_cast<std::int64_t>(game.snake().size()); };
    while (length > 4 && size() < length) {
        const Cell head = game.snake().front();
        const Direction direction = game.score() == 0 ? Direction::right : alongTheWay(head);
        const Cell next = ahead(head, direction);
        if (next == game.food()) {
            plant(gardener, game, next,
                  size() + 1 < length ? ahead(next, alongTheWay(next)) : outOfReach);
        }
        game.turn(direction);
        game.step(gardener);
    }
    while (game.snake().back().y >= wayRows) {
        game.turn(alongTheWay(game.snake().front()));
        game.step(gardener);
    }
    return game;
}

void step(benchmark::State& state) {
    Game game = gameOnTheWay(state.range(0));
    for (auto _ : state) {
        game.turn(alongTheWay(game.snake().front()));
        game.step();
    }
    if (game.ended() || std::ssize(game.snake()) != state.range(0)) {
        state.SkipWithError("the run did not stay as it was");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(step)->Arg(4)->Arg(60)->Arg(600);

void placeFruit(benchmark::State& state) {
    Detail::Occupancy taken(28, 22);
    const Game game = gameOnTheWay(state.range(0));
    for (const Cell& cell : game.snake()) {
        taken.take(cell);
    }
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
        Game game(28, 22);
        for (; !game.ended(); ++steps) {
            game.turn(alongTheTour(game));
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
