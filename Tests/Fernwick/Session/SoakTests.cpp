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

/// Applies the same random operations to a session and to its model and compares the two.
class Soak : public testing::Test {
protected:
    static constexpr double secondsInAnHour = 3600;

    /// Kept in memory: writing a file at every change would take hours.
    Storage::PreferencesFile preferences{std::filesystem::path()};
    SoundRecorder sounds;
    std::optional<Session> session{std::in_place, preferences, sounds};
    SessionModel model;
    std::mt19937_64 random;
    std::size_t endedRuns = 0;
    /// The phases reached, with and without the score sheet.
    std::set<std::pair<Session::Phase, bool>> seen;
    double secondsPlayed = 0;
    /// Steers along the closed walk instead of at random.
    bool followsWalk = false;

    [[nodiscard]] bool chance(double probability) {
        return std::bernoulli_distribution(probability)(random);
    }
    [[nodiscard]] std::size_t below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    }

    void tick() {
        QTimer* timer = session->findChild<QTimer*>();
        if (timer == nullptr) {
            return;
        }
        // Also while paused: a timeout event may already be queued when the run is paused.
        QMetaObject::invokeMethod(timer, "timeout");
        const bool advances = model.advances();
        const std::int64_t before = model.game.score;
        model.tick(random);
        if (advances) {
            secondsPlayed += std::chrono::duration<double>(timer->intervalAsDuration()).count();
        }
        if (model.game.score > before && !model.game.ended) {
            model.game.food = session->game().food();
        }
        endedRuns += advances && model.game.ended ? 1 : 0;
    }

    void pressTurn(GameKey key) {
        EXPECT_EQ(session->key(key), model.handlesKeys());
        model.turn(static_cast<Direction>(key));
    }

    void steer() {
        if (!followsWalk) {
            static constexpr std::array keys{GameKey::up, GameKey::down, GameKey::left,
                                             GameKey::right};
            pressTurn(keys[below(keys.size())]);
        } else {
            pressTurn(static_cast<GameKey>(alongCycle(session->game())));
        }
    }

    void pressOther() {
        switch (below(3)) {
            case 0:
                EXPECT_EQ(session->key(GameKey::space), model.handlesKeys());
                model.space();
                break;
            case 1:
                EXPECT_EQ(session->key(GameKey::escape), model.handlesKeys());
                model.escape();
                break;
            default:
                EXPECT_EQ(session->key(GameKey::restart), model.handlesKeys());
                model.restart();
        }
    }

    void choosePace() {
        if (model.canChoosePace()) {
            const Pace pace = allPaces[below(allPaces.size())];
            session->choosePace(pace);
            model.pace = pace;
        }
    }

    void saveOrSkip() {
        if (chance(0.5)) {
            session->skipSaving();
            model.skip();
            return;
        }
        const bool blank = chance(0.3);
        session->editName(blank ? QStringLiteral(" \t ") : QStringLiteral(" Ada  Fern "));
        session->saveScore();
        model.save(blank);
    }

    void useControl() {
        switch (below(7)) {
            case 0:
                session->start();
                model.start();
                break;
            case 1:
                session->pause();
                model.pause();
                break;
            case 2:
                session->openScores();
                model.openScores();
                break;
            case 3:
                session->closeScores();
                model.showingScores = false;
                break;
            case 4:
                session->setSound(!session->sound());
                model.sound = !model.sound;
                break;
            case 5:
                choosePace();
                break;
            default:
                // The application is deactivated.
                if (session->running()) {
                    session->pause();
                }
                model.pauseIfRunning();
        }
    }

    void restartProgram() {
        session.emplace(preferences, sounds);
        model.launch();
    }

    void act() {
        const bool running = model.phase == Session::Phase::running;
        if (chance(model.held ? 0.3 : 0.005)) {
            model.held = !model.held;
            session->setHeld(model.held);
            return;
        }
        if (running && chance(0.97)) {
            if (followsWalk || chance(0.4)) {
                steer();
            }
            tick();
            return;
        }
        followsWalk = chance(0.5);
        if (model.phase == Session::Phase::awaitingName && chance(0.5)) {
            saveOrSkip();
        } else if (chance(0.5)) {
            pressOther();
        } else if (chance(0.1)) {
            tick();
        } else if (chance(0.05)) {
            restartProgram();
        } else {
            useControl();
        }
    }

    void expectEqual() {
        ASSERT_EQ(session->phase(), model.phase);
        ASSERT_EQ(session->showingScores(), model.showingScores);
        ASSERT_EQ(session->held(), model.held);
        ASSERT_EQ(session->pace(), model.pace);
        ASSERT_EQ(session->runPace(), model.runPace);
        ASSERT_EQ(session->scorePace(), model.scorePace);
        ASSERT_EQ(session->sound(), model.sound);
        ASSERT_EQ(session->best(), model.best());
        ASSERT_EQ(session->scores().entries().size(), model.savedRuns);
        ASSERT_EQ(sounds.played, model.played);
        ASSERT_TRUE(std::ranges::equal(session->game().snake(), model.game.snake));
        ASSERT_EQ(session->game().food(), model.game.food);
        ASSERT_EQ(session->game().direction(), model.game.direction);
        ASSERT_EQ(session->game().score(), model.game.score);
        ASSERT_EQ(session->game().won(), model.game.won);
        const QTimer* timer = session->findChild<QTimer*>();
        ASSERT_EQ(timer != nullptr && timer->isActive(), model.advances());
        sounds.played.clear();
        model.played.clear();
        seen.emplace(model.phase, model.showingScores);
    }
};

}  // namespace

// FERNWICK_SOAK_HOURS sets the hours of play, FERNWICK_SOAK_SEED the random seed.
TEST_F(Soak, hoursOfRandomPlayMatchTheModel) {
    const double hours = environmentNumber("FERNWICK_SOAK_HOURS", 4);
    const auto seed = static_cast<std::uint64_t>(environmentNumber("FERNWICK_SOAK_SEED", 2026));
    random.seed(seed);
    std::size_t actions = 0;
    while (secondsPlayed < hours * secondsInAnHour) {
        act();
        ++actions;
        expectEqual();
        ASSERT_FALSE(HasFailure()) << "after action " << actions << " of seed " << seed;
    }
    // All six phases with and without the score sheet, except running with it.
    EXPECT_EQ(seen.size(), 11U);
    std::cout << hours << " h of play, " << actions << " actions, " << endedRuns << " ended runs, "
              << model.savedRuns << " saved, seed " << seed << '\n';
}
