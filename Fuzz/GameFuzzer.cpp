#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <random>
#include <span>
#include <vector>

#include "Require.hpp"
#include "SnakeCore/Game.hpp"
#include "SnakeCore/Playing.hpp"

namespace {

using namespace SnakeCore;

bool onBoard(const Game& game, Cell cell) {
    return cell.x >= 0 && cell.x < game.width() && cell.y >= 0 && cell.y < game.height();
}

void checkState(const Game& game) {
    const std::deque<Cell>& snake = game.snake();
    // One board for all runs, marked with a new stamp each time: clearing it would cost more than
    // everything else.
    static std::vector<std::uint64_t> stamps;
    static std::uint64_t stamp = 0;
    stamps.resize(std::max(stamps.size(), static_cast<std::size_t>(game.width() * game.height())));
    ++stamp;
    const auto place = [&](Cell cell) -> std::uint64_t& {
        return stamps[static_cast<std::size_t>(cell.y * game.width() + cell.x)];
    };
    for (const Cell& cell : snake) {
        require(onBoard(game, cell), "the snake lies on the board");
        require(place(cell) != stamp, "no two cells of the snake are equal");
        place(cell) = stamp;
    }
    for (std::size_t i = 1; i < snake.size(); ++i) {
        const std::int64_t distance =
            std::abs(snake[i].x - snake[i - 1].x) + std::abs(snake[i].y - snake[i - 1].y);
        require(distance == 1, "the snake is in one piece");
    }
    const auto length = static_cast<std::int64_t>(snake.size());
    require(game.score() == 10 * (length - 4), "each fruit is worth ten points and one cell");
    require(onBoard(game, game.food()), "the fruit lies on the board");
    require((place(game.food()) == stamp) == game.won(), "the fruit lies off the snake");
    require(game.won() == (length == game.width() * game.height()), "only a full board is won");
    require(!game.won() || game.ended(), "a won run has ended");
}

/// What a step is judged by. Less than the whole game, whose record of the free cells is larger
/// than all the rest and would be copied at each step.
struct Moment {
    std::deque<Cell> snake;
    Cell food{};
    Direction direction{};

    // Into the room that the last moment took.
    void take(const Game& game) {
        snake = game.snake();
        food = game.food();
        direction = game.direction();
    }
};

void checkStep(const Moment& before, const Game& after) {
    require(!opposite(before.direction, after.direction()), "the snake never reverses");
    const Cell offset = stepVector(after.direction());
    const Cell head{before.snake.front().x + offset.x, before.snake.front().y + offset.y};
    const bool ate = head == before.food;
    if (after.ended() && !after.won()) {
        require(after.snake() == before.snake, "a strike leaves the snake");
        require(after.food() == before.food, "a strike leaves the fruit");
        // The tail leaves its cell in the same step, unless the snake grows.
        const auto body = std::find(before.snake.begin(), before.snake.end(), head);
        const auto hit = std::distance(body, before.snake.end());
        require(!onBoard(after, head) || hit > (ate ? 0 : 1), "a run ends only at a strike");
        return;
    }
    require(after.snake().front() == head, "the head moves one cell");
    require(after.snake().size() == before.snake.size() + (ate ? 1 : 0), "fruit makes it grow");
    require(ate || after.food() == before.food, "the fruit stays until it is eaten");
}

}  // namespace

/// The first three bytes choose board and chance; each byte after them is one step: up to two
/// turns, or, from 0xF0, a stretch along the way through all cells. A run stops soon after its end
/// or, so that the fuzzer gets round to more of them, after so many steps.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t header = 3;
    constexpr std::uint8_t tour = 0xF0;
    constexpr int mostSteps = 1000;
    if (size < header) {
        return 0;
    }
    Game game(6 + data[0] % 35, 4 + data[1] % 27);
    std::minstd_rand generator(data[2] + 1U);
    Moment before;
    int stepsMade = 0;
    for (const std::uint8_t byte : std::span(data, size).subspan(header)) {
        const bool onTour = byte >= tour && game.height() % 2 == 0;
        const int steps = onTour ? 8 * (byte - tour + 1) : 1;
        for (int i = 0; i < steps; ++i) {
            if (onTour) {
                game.turn(alongTheTour(game));
            } else if ((byte & 0x10U) != 0) {
                game.turn(static_cast<Direction>(byte & 3U));
                game.turn(static_cast<Direction>(byte >> 2U & 3U));
            }
            if (game.ended() || stepsMade++ == mostSteps) {
                const Game last = game;
                game.step(generator);
                require(!last.ended() || game == last, "nothing changes after the end");
                return 0;
            }
            before.take(game);
            game.step(generator);
            checkStep(before, game);
            checkState(game);
        }
    }
    return 0;
}
