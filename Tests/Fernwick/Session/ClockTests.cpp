#include <QTest>
#include <chrono>
#include <thread>

#include "Fernwick/Session/SessionTest.hpp"
#include "Fernwick/Session/WallClock.hpp"

using std::chrono_literals::operator""s;
using std::chrono_literals::operator""h;
using std::chrono_literals::operator""ms;
using std::chrono::steady_clock;

namespace {

class Clock : public SessionTest {
protected:
    /// The number of cells the snake has moved; it always starts in the same column.
    [[nodiscard]] std::int64_t cellsMoved() const {
        return session.game().snake()[0].x - SnakeCore::Game(28, 22).snake()[0].x;
    }

    void waitUntilMoved(std::int64_t cells) const {
        while (cellsMoved() < cells) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    /// Saves a run that goes straight up into the wall and scores 0.
    void playZeroScoreAs(const char* name) {
        session.start();
        session.key(GameKey::up);
        endRun();
        saveScoreAs(name);
    }
};

}  // namespace

TEST_F(Clock, aStalledEventLoopDelaysOneTickAndCausesNoBurst) {
    session.choosePace(Pace::gentle);
    session.start();
    waitUntilMoved(1);

    std::this_thread::sleep_for(2s);
    const auto endOfStall = steady_clock::now();
    waitUntilMoved(2);
    EXPECT_EQ(cellsMoved(), 2);
    waitUntilMoved(3);

    // Qt timers have a resolution of one millisecond and may fire early by the remainder.
    EXPECT_GE(steady_clock::now() - endOfStall, tickInterval(Pace::gentle) - 2ms);
    EXPECT_EQ(cellsMoved(), 3);
}

TEST_F(Clock, settingTheWallClockDoesNotChangeTheTickInterval) {
    for (const auto jump : {-24h, 24h}) {
        session.choosePace(Pace::swift);
        session.start();
        waitUntilMoved(1);
        const auto start = steady_clock::now();

        const WallClock shifted(jump);
        waitUntilMoved(4);

        EXPECT_GE(steady_clock::now() - start, tickInterval(Pace::swift));
        EXPECT_LT(steady_clock::now() - start, 10s);
        EXPECT_EQ(cellsMoved(), 4);
    }
}

TEST_F(Clock, runsSavedAfterTheClockIsSetBackRankByTheirDates) {
    playZeroScoreAs("Ada");
    const WallClock shifted(-24h);
    playZeroScoreAs("Ben");

    const auto& entries = session.scores().entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].name, "Ada");
    EXPECT_EQ(entries[1].name, "Ben");
    EXPECT_LT(entries[1].date, entries[0].date);
    const auto leaders = session.scores().leaders("Classic");
    EXPECT_EQ(leaders.front().name, "Ben");
    EXPECT_EQ(leaders.back().name, "Ada");
}
