#include "Gallery/Scenes.hpp"

#include <QTimer>
#include <algorithm>
#include <array>
#include <random>

#include "Fernwick/Session/SavedScores.hpp"
#include "Session/Preferences.hpp"
#include "Session/Session.hpp"
#include "SnakeCore/Game.hpp"
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

// Plays greedily, always taking the free step nearest to the fruit, up to `score` or until the next
// step would end the run.
Game playedGreedilyTo(std::int64_t score) {
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
    Game game = playedGreedilyTo(score);
    while (!game.ended()) {
        game.step();
    }
    return game;
}

// Plays along a closed walk over the whole board, up to `score`.
Game playedAlongCycleTo(std::int64_t score) {
    Game game(Session::columns, Session::rows);
    std::minstd_rand generator(seed);
    while (game.score() < score && !game.ended()) {
        game.turn(alongCycle(game));
        game.step(generator);
    }
    return game;
}

// A full table for Classic, with names that are hard to lay out, and one entry for Swift.
void storeFullTable(Preferences& preferences) {
    SnakeCore::HighScores table = scoreTable({
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
    });
    table.record(SnakeCore::UUID::random(), "Mary", 300, "Swift", SnakeCore::Date{0});
    preferences.store(QStringLiteral("high-scores-v1"), QByteArray::fromStdString(table.encoded()));
}

void storeNothing(Preferences&) {}

void storeBest(Preferences& preferences) {
    constexpr int best = 1240;
    preferences.store(bestKey(Pace::classic), best);
}

void storeBestAndTable(Preferences& preferences) {
    storeBest(preferences);
    storeFullTable(preferences);
}

Game freshGame() {
    return {Session::columns, Session::rows};
}

Game pausedGame() {
    return playedGreedilyTo(220);
}

Game endedGame() {
    return endedAt(260);
}

// Starts a run and fires one tick, which replaces the game with the scene's.
void run(Session& session) {
    session.start();
    QMetaObject::invokeMethod(session.findChild<QTimer*>(), "timeout");
}

Scene sheet(const char* name, Pace pace) {
    return {QString::fromLatin1(name), storeFullTable, freshGame, [pace](Session& session) {
                session.openScores();
                session.chooseScorePace(pace);
            }};
}

Scene help(const char* name, Session::Sheet sheet) {
    return {QString::fromLatin1(name), storeBest, freshGame,
            [sheet](Session& session) { session.openSheet(sheet); }};
}

Scene nameEntry(const char* name, const char* playerName) {
    return {QString::fromLatin1(name), storeBestAndTable, endedGame,
            [playerName](Session& session) {
                run(session);
                session.editName(QString::fromLatin1(playerName));
            }};
}

}  // namespace

std::vector<Scene> galleryScenes() {
    return {
        {"fresh", storeNothing, freshGame, [](Session&) {}},
        {"running", storeBest, pausedGame, run},
        {"running-long", storeBest, [] { return playedAlongCycleTo(2400); }, run},
        {"paused", storeBest, pausedGame,
         [](Session& session) {
             run(session);
             session.pause();
         }},
        nameEntry("ended", "Rosalind"),
        nameEntry("ended-empty-name", "   "),
        {"saved", storeBestAndTable, endedGame,
         [](Session& session) {
             run(session);
             session.editName(QStringLiteral("Rosalind"));
             session.saveScore();
         }},
        {"skipped", storeBestAndTable, endedGame,
         [](Session& session) {
             run(session);
             session.skipSaving();
         }},
        {"won", storeBest, [] { return playedAlongCycleTo(6120); }, run},
        sheet("sheet-gentle-empty", Pace::gentle),
        sheet("sheet-classic-full", Pace::classic),
        sheet("sheet-swift", Pace::swift),
        help("sheet-keys", Session::Sheet::keys),
        help("sheet-about", Session::Sheet::about),
        {"sound-off", storeBest, [] { return playedGreedilyTo(40); },
         [](Session& session) {
             session.setSound(false);
             run(session);
         }},
    };
}
