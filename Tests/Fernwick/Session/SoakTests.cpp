#include <gtest/gtest.h>

#include <QTimer>
#include <iostream>
#include <optional>
#include <random>
#include <set>
#include <utility>

#include "Fernwick/Session/SessionModel.hpp"
#include "Fernwick/Session/SessionTest.hpp"
#include "Support/ClosedWalk.hpp"
#include "Support/EnvironmentNumber.hpp"

using SnakeCore::Direction;

namespace {

/// A session and its model, which are told the same and must say the same.
class Soak : public testing::Test {
protected:
    static constexpr double secondsInAnHour = 3600;

    /// Nothing is stored: what this plays through in seconds, a disk would take hours for.
    Storage::PreferencesFile preferences{std::filesystem::path()};
    HeardSounds sounds;
    std::optional<Session> launched{std::in_place, preferences, sounds};
    SessionModel model;
    std::mt19937_64 random;
    std::size_t endedRuns = 0;
    /// The states that have been seen, each with and without the sheet.
    std::set<std::pair<Session::Phase, bool>> seen;
    double played = 0;
    bool plansAhead = false;

    [[nodiscard]] bool chance(double probability) {
        return std::bernoulli_distribution(probability)(random);
    }
    [[nodiscard]] std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }

    void tick() {
        QTimer* timer = launched->findChild<QTimer*>();
        if (timer == nullptr) {
            return;
        }
        // Also while it rests: a firing may be on its way when a run is paused.
        QMetaObject::invokeMethod(timer, "timeout");
        const bool moved = model.state == Session::Phase::running;
        const std::int64_t before = model.game.score;
        model.tick(random);
        if (moved) {
            played += std::chrono::duration<double>(timer->intervalAsDuration()).count();
        }
        if (model.game.score > before && !model.game.ended) {
            model.game.food = launched->game().food();
        }
        endedRuns += moved && model.game.ended ? 1 : 0;
    }

    void pressTurn(GameKey key) {
        EXPECT_EQ(launched->key(key), model.takesKeys());
        model.turn(static_cast<Direction>(key));
    }

    void steer() {
        if (!plansAhead) {
            static constexpr std::array keys{GameKey::up, GameKey::down, GameKey::left,
                                             GameKey::right};
            pressTurn(keys[below(keys.size())]);
        } else {
            pressTurn(static_cast<GameKey>(alongCycle(launched->game())));
        }
    }

    void pressOther() {
        switch (below(3)) {
            case 0:
                EXPECT_EQ(launched->key(GameKey::space), model.takesKeys());
                model.space();
                break;
            case 1:
                EXPECT_EQ(launched->key(GameKey::escape), model.takesKeys());
                model.escape();
                break;
            default:
                EXPECT_EQ(launched->key(GameKey::restart), model.takesKeys());
                model.restart();
        }
    }

    void choosePace() {
        if (model.offersPaces()) {
            const Pace pace = allPaces[below(allPaces.size())];
            launched->choosePace(pace);
            model.pace = pace;
        }
    }

    void saveOrSkip() {
        if (chance(0.5)) {
            launched->skipSaving();
            model.skip();
            return;
        }
        const bool blank = chance(0.3);
        launched->editName(blank ? QStringLiteral(" \t ") : QStringLiteral(" Ada  Fern "));
        launched->saveScore();
        model.save(blank);
    }

    void useAControl() {
        switch (below(7)) {
            case 0:
                launched->start();
                model.start();
                break;
            case 1:
                launched->pause();
                model.pause();
                break;
            case 2:
                launched->openScores();
                model.openScores();
                break;
            case 3:
                launched->closeScores();
                model.sheet = false;
                break;
            case 4:
                launched->setSound(!launched->sound());
                model.sound = !model.sound;
                break;
            case 5:
                choosePace();
                break;
            default:
                // As when another window comes to the front.
                if (launched->running()) {
                    launched->pause();
                }
                model.leave();
        }
    }

    void quitAndLaunchAgain() {
        launched.emplace(preferences, sounds);
        model.launch();
    }

    void act() {
        const bool moving = model.state == Session::Phase::running;
        if (moving && chance(0.97)) {
            if (plansAhead || chance(0.4)) {
                steer();
            }
            tick();
            return;
        }
        plansAhead = chance(0.5);
        if (model.state == Session::Phase::awaitingName && chance(0.5)) {
            saveOrSkip();
        } else if (chance(0.5)) {
            pressOther();
        } else if (chance(0.1)) {
            tick();
        } else if (chance(0.05)) {
            quitAndLaunchAgain();
        } else {
            useAControl();
        }
    }

    void expectTheSame() {
        ASSERT_EQ(launched->phase(), model.state);
        ASSERT_EQ(launched->showingScores(), model.sheet);
        ASSERT_EQ(launched->pace(), model.pace);
        ASSERT_EQ(launched->runPace(), model.runPace);
        ASSERT_EQ(launched->scorePace(), model.scorePace);
        ASSERT_EQ(launched->sound(), model.sound);
        ASSERT_EQ(launched->best(), model.best());
        ASSERT_EQ(launched->scores().entries().size(), model.savedRuns);
        ASSERT_EQ(sounds.heard, model.heard);
        ASSERT_TRUE(std::ranges::equal(launched->game().snake(), model.game.snake));
        ASSERT_EQ(launched->game().food(), model.game.food);
        ASSERT_EQ(launched->game().direction(), model.game.direction);
        ASSERT_EQ(launched->game().score(), model.game.score);
        ASSERT_EQ(launched->game().won(), model.game.won);
        const QTimer* timer = launched->findChild<QTimer*>();
        ASSERT_EQ(timer != nullptr && timer->isActive(), model.state == Session::Phase::running);
        sounds.heard.clear();
        model.heard.clear();
        seen.emplace(model.state, model.sheet);
    }
};

}  // namespace

// FERNWICK_SOAK_HOURS of play, with a random player of FERNWICK_SOAK_SEED.
TEST_F(Soak, hoursOfPlayByARandomPlayerNeverContradictTheModel) {
    const double hours = environmentNumber("FERNWICK_SOAK_HOURS", 4);
    const auto seed = static_cast<std::uint64_t>(environmentNumber("FERNWICK_SOAK_SEED", 2026));
    random.seed(seed);
    std::size_t actions = 0;
    while (played < hours * secondsInAnHour) {
        act();
        ++actions;
        expectTheSame();
        ASSERT_FALSE(HasFailure()) << "after action " << actions << " of seed " << seed;
    }
    // Six states with and without the sheet, but for a run that moves under it.
    EXPECT_EQ(seen.size(), 11U);
    std::cout << hours << " h of play, " << actions << " actions, " << endedRuns << " ended runs, "
              << model.savedRuns << " saved, seed " << seed << '\n';
}
