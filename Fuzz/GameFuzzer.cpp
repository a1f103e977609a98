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
#include "Support/ClosedWalk.hpp"

namespace {

using namespace SnakeCore;

bool onBoard(const Game& game, Cell cell) {
    return cell.x >= 0 && cell.x < game.width() && cell.y >= 0 && cell.y < game.height();
}

void checkState(const Game& game) {
    const std::deque<Cell>& snake = game.snake();
    // A cell is marked if it holds the current stamp: clearing a board for every check would take
    // longer than everything else.
    static std::vector<std::uint64_t> stamps;
    static std::uint64_t stamp = 0;
    stamps.resize(std::max(stamps.size(), static_cast<std::size_t>(game.width() * game.height())));
    ++stamp;
    const auto stampAt = [&](Cell cell) -> std::uint64_t& {
        return stamps[static_cast<std::size_t>(cell.y * game.width() + cell.x)];
    };
    for (const Cell& cell : snake) {
        require(onBoard(game, cell), "every cell of the snake is on the board");
        require(stampAt(cell) != stamp, "no two cells of the snake are equal");
        stampAt(cell) = stamp;
    }
    for (std::size_t i = 1; i < snake.size(); ++i) {
        const std::int64_t distance =
            std::abs(snake[i].x - snake[i - 1].x) + std::abs(snake[i].y - snake[i - 1].y);
        require(distance == 1, "consecutive cells of the snake are neighbours");
    }
    const auto length = static_cast<std::int64_t>(snake.size());
    require(game.score() == 10 * (length - 4), "each fruit scores ten points and adds one cell");
    require(onBoard(game, game.food()), "the fruit is on the board");
    require((stampAt(game.food()) == stamp) == game.won(),
            "the fruit is on the snake only if the run is won");
    require(game.won() == (length == game.width() * game.height()),
            "the run is won exactly if the snake fills the board");
    require(!game.won() || game.ended(), "a won run has ended");
}

/// The parts of a game that a step is checked against. Copying a whole game at every step would
/// copy its record of the taken cells, which is larger than all the rest.
struct Snapshot {
    std::deque<Cell> snake;
    Cell food{};
    Direction direction{};

    /// Reuses the memory of the previous snapshot.
    void take(const Game& game) {
        snake = game.snake();
        food = game.food();
        direction = game.direction();
    }
};

void checkStep(const Snapshot& before, const Game& after) {
    require(!opposite(before.direction, after.direction()), "the snake never reverses");
    const Cell offset = stepVector(after.direction());
    const Cell head{before.snake.front().x + offset.x, before.snake.front().y + offset.y};
    const bool ate = head == before.food;
    if (after.ended() && !after.won()) {
        require(after.snake() == before.snake, "a collision leaves the snake as it was");
        require(after.food() == before.food, "a collision leaves the fruit where it was");
        // The tail moves away in the same step, unless the snake grows.
        const auto body = std::find(before.snake.begin(), before.snake.end(), head);
        const auto hit = std::distance(body, before.snake.end());
        require(!onBoard(after, head) || hit > (ate ? 0 : 1), "a run ends only in a collision");
        return;
    }
    require(after.snake().front() == head, "the head moves one cell");
    require(after.snake().size() == before.snake.size() + (ate ? 1 : 0),
            "the snake grows by one cell if it eats, else not at all");
    require(ate || after.food() == before.food, "the fruit stays until it is eaten");
}

}  // namespace

/// Plays one run. The first three bytes choose the width, the height and the generator's seed. Each
/// byte after them is one step with up to two turns or, from 0xF0 on, 8 to 128 steps along the
/// Hamiltonian cycle. Stops at the end of the run, or after 1000 steps to get through more inputs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t header = 3;
    constexpr std::uint8_t firstCycleByte = 0xF0;
    constexpr int maximumSteps = 1000;
    if (size < header) {
        return 0;
    }
    Game game(6 + data[0] % 35, 4 + data[1] % 27);
    std::minstd_rand generator(data[2] + 1U);
    Snapshot before;
    int stepsMade = 0;
    for (const std::uint8_t byte : std::span(data, size).subspan(header)) {
        const bool onCycle = byte >= firstCycleByte && game.height() % 2 == 0;
        const int steps = onCycle ? 8 * (byte - firstCycleByte + 1) : 1;
        for (int i = 0; i < steps; ++i) {
            if (onCycle) {
                game.turn(alongCycle(game));
            } else if ((byte & 0x10U) != 0) {
                game.turn(static_cast<Direction>(byte & 3U));
                game.turn(static_cast<Direction>(byte >> 2U & 3U));
            }
            if (game.ended() || stepsMade++ == maximumSteps) {
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
