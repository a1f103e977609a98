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
    /// How far the snake has come; every fresh one begins in the same column.
    [[nodiscard]] std::int64_t cellsGone() const {
        return session.game().snake()[0].x - SnakeCore::Game(28, 22).snake()[0].x;
    }

    void waitForCell(std::int64_t cells) const {
        while (cellsGone() < cells) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    /// Plays straight up into the wall, past the fruit.
    void saveARunAs(const char* name) {
        session.start();
        session.key(GameKey::up);
        endRun();
        session.editName(QString::fromLatin1(name));
        session.saveScore();
    }
};

}  // namespace

TEST_F(Clock, aStallCostsOneLateTickAndNoBurst) {
    session.choosePace(Pace::gentle);
    session.start();
    waitForCell(1);

    std::this_thread::sleep_for(2s);
    const auto stallEnded = steady_clock::now();
    waitForCell(2);
    EXPECT_EQ(cellsGone(), 2);
    waitForCell(3);

    // The system's timers may be early by what is left of their last millisecond.
    EXPECT_GE(steady_clock::now() - stallEnded, tickInterval(Pace::gentle) - 2ms);
    EXPECT_EQ(cellsGone(), 3);
}

TEST_F(Clock, setBackOrForwardDoesNotChangeThePaceOfARun) {
    for (const auto jump : {-24h, 24h}) {
        session.choosePace(Pace::swift);
        session.start();
        waitForCell(1);
        const auto began = steady_clock::now();

        const WallClock moved(jump);
        waitForCell(4);

        EXPECT_GE(steady_clock::now() - began, tickInterval(Pace::swift));
        EXPECT_LT(steady_clock::now() - began, 10s);
        EXPECT_EQ(cellsGone(), 4);
    }
}

TEST_F(Clock, setBackBetweenTwoRunsKeepsBothAndRanksByTheDatesTheyBear) {
    saveARunAs("Ada");
    const WallClock moved(-24h);
    saveARunAs("Ben");

    const auto& entries = session.scores().entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].name, "Ada");
    EXPECT_EQ(entries[1].name, "Ben");
    EXPECT_LT(entries[1].date, entries[0].date);
    const auto leaders = session.scores().leaders("Classic");
    EXPECT_EQ(leaders.front().name, "Ben");
    EXPECT_EQ(leaders.back().name, "Ada");
}
