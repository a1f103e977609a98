#include "Gallery/Scenes.hpp"

#include <algorithm>
#include <array>
#include <random>

#include "Session/Session.hpp"
#include "SnakeCore/Game.hpp"
#include "SnakeCore/HighScores.hpp"
#include "Support/ClosedWalk.hpp"

namespace {

using SnakeCore::Cell;
using SnakeCore::Direction;
using SnakeCore::Game;

constexpr std::uint32_t seed = 7;

Cell neighbour(Cell cell, Direction direction) {
    switch (direction) {
        case Direction::up:
            return {cell.x, cell.y - 1};
        case Direction::down:
            return {cell.x, cell.y + 1};
        case Direction::left:
            return {cell.x - 1, cell.y};
        case Direction::right:
            return {cell.x + 1, cell.y};
    }
    return cell;
}

bool isFree(const Game& game, Cell cell) {
    return cell.x >= 0 && cell.x < game.width() && cell.y >= 0 && cell.y < game.height() &&
           std::ranges::find(game.snake(), cell) == game.snake().end();
}

std::int64_t distanceToFruit(const Game& game, Cell cell) {
    return std::abs(cell.x - game.food().x) + std::abs(cell.y - game.food().y);
}

// Plays as a hasty person does: always the free step that leads nearest to the fruit, as long as
// that goes well.
Game grownTo(std::int64_t score) {
    Game game(Session::columns, Session::rows);
    std::minstd_rand generator(seed);
    constexpr std::array directions{Direction::up, Direction::down, Direction::left,
                                    Direction::right};
    while (game.score() < score) {
        Direction best = game.direction();
        std::int64_t nearest = std::numeric_limits<std::int64_t>::max();
        for (const Direction direction : directions) {
            const Cell ahead = neighbour(game.snake()[0], direction);
            if (isFree(game, ahead) && distanceToFruit(game, ahead) < nearest) {
                nearest = distanceToFruit(game, ahead);
                best = direction;
            }
        }
        Game next = game;
        next.turn(best);
        next.step(generator);
        if (next.ended()) {
            break;
        }
        game = std::move(next);
    }
    return game;
}

Game endedAt(std::int64_t score) {
    Game game = grownTo(score);
    while (!game.ended()) {
        game.step();
    }
    return game;
}

// Plays as a patient person does: round the whole board, again and again.
Game patientlyGrownTo(std::int64_t score) {
    Game game(Session::columns, Session::rows);
    std::minstd_rand generator(seed);
    while (game.score() < score && !game.ended()) {
        const Direction next = alongCycle(game);
        game.turn(opposite(next, game.direction()) ? Direction::down : next);
        game.step(generator);
    }
    return game;
}

// A full table for the classic pace, with names that test the rows, and one entry for the swift.
void fillTable(Session& session) {
    const std::array<std::pair<const char*, std::int64_t>, 10> saved{{
        {"Ada Lovelace", 1240},
        {"WWWWWWWWWWWWWWWWWWWWWWWW", 980},
        {"مريم", 870},
        {"🌿🌱🍀🌾🌿🌱🍀🌾🌿🌱🍀🌾🌿🌱🍀🌾🌿🌱🍀🌾🌿🌱🍀🌾", 640},
        {"Grace", 500},
        {"さくら", 410},
        {"Ὑπατία", 380},
        {"Z̸͠o̴͝e̵͘", 240},
        {"Emmy", 120},
        {"Émilie", 90},
    }};
    session.scores.mutate([&](SnakeCore::HighScores& table) {
        for (const auto& [name, score] : saved) {
            table.record(SnakeCore::UUID::random(), name, score, "Classic", SnakeCore::Date{0});
        }
        table.record(SnakeCore::UUID::random(), "Mary", 300, "Swift", SnakeCore::Date{0});
    });
}

void run(Session& session, Game game) {
    constexpr std::int64_t earlierBest = 1240;
    session.best = std::max(earlierBest, game.score());
    session.game = std::move(game);
    session.started = true;
    session.running = !session.game->ended();
    session.awaitingName = session.game->ended();
}

void takeABreath(Session& session) {
    run(session, grownTo(220));
    session.running = false;
}

void end(Session& session, const QString& name) {
    fillTable(session);
    run(session, endedAt(260));
    session.playerName = name;
}

void save(Session& session) {
    end(session, QStringLiteral("Rosalind"));
    session.saveScore();
}

void openSheet(Session& session, Pace pace) {
    fillTable(session);
    session.openScores();
    session.scorePace = pace;
}

}  // namespace

std::vector<Scene> galleryScenes() {
    return {
        {"fresh", [](Session&) {}},
        {"running", [](Session& session) { run(session, grownTo(220)); }},
        {"running-long", [](Session& session) { run(session, patientlyGrownTo(2400)); }},
        {"paused", takeABreath},
        {"ended", [](Session& session) { end(session, QStringLiteral("Rosalind")); }},
        {"ended-empty-name", [](Session& session) { end(session, QStringLiteral("   ")); }},
        {"saved", save},
        {"skipped",
         [](Session& session) {
             end(session, {});
             session.skipSaving();
         }},
        {"won", [](Session& session) { run(session, patientlyGrownTo(6120)); }},
        {"sheet-gentle-empty", [](Session& session) { openSheet(session, Pace::gentle); }},
        {"sheet-classic-full", [](Session& session) { openSheet(session, Pace::classic); }},
        {"sheet-swift", [](Session& session) { openSheet(session, Pace::swift); }},
        {"sound-off",
         [](Session& session) {
             session.switchSound(false);
             run(session, grownTo(40));
         }},
    };
}
