#include <QTest>

#include "Fernwick/Session/SessionTest.hpp"

namespace {

/// A menu that is in use holds the run.
class Hold : public SessionTest {
protected:
    [[nodiscard]] std::int64_t headColumn() const { return session.game().snake()[0].x; }

    /// Starts a run and waits for the second half of an interval.
    void waitInRun() {
        session.choosePace(Pace::gentle);
        session.start();
        ASSERT_TRUE(QTest::qWaitFor([this] { return timer()->remainingTimeAsDuration() < half; }));
    }

    const std::chrono::milliseconds half = tickInterval(Pace::gentle) / 2;
};

}  // namespace

TEST_F(Hold, stopsTheTimerWithoutPausing) {
    session.start();
    int changes = 0;
    QObject::connect(&session, &Session::changed, &session, [&changes] { ++changes; });

    session.setHeld(true);

    EXPECT_TRUE(session.held());
    EXPECT_FALSE(timerIsActive());
    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(changes, 0);
}

TEST_F(Hold, ignoresATimeoutThatIsAlreadyQueued) {
    session.start();
    session.setHeld(true);

    fireTimer();

    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
}

TEST_F(Hold, endsWithAFullIntervalBeforeTheNextStep) {
    waitInRun();
    const std::int64_t column = headColumn();
    session.setHeld(true);

    session.setHeld(false);

    EXPECT_TRUE(timerIsActive());
    EXPECT_GT(timer()->remainingTimeAsDuration(), half);
    EXPECT_TRUE(QTest::qWaitFor([&] { return headColumn() == column + 1; }));
}

TEST_F(Hold, keepsTheIntervalOfTheRun) {
    session.start();
    session.setHeld(true);
    session.choosePace(Pace::swift);

    session.setHeld(false);

    EXPECT_EQ(timer()->intervalAsDuration(), tickInterval(Pace::classic));
}

TEST_F(Hold, thatHasAlreadyEndedDoesNotRestartTheTimer) {
    waitInRun();

    session.setHeld(false);

    EXPECT_LT(timer()->remainingTimeAsDuration(), half);
}

TEST_F(Hold, delaysTheFirstStepOfARunStartedMeanwhile) {
    session.setHeld(true);

    session.start();
    fireTimer();

    EXPECT_TRUE(session.running());
    EXPECT_FALSE(timerIsActive());
    EXPECT_EQ(headColumn(), 14);
    session.setHeld(false);
    EXPECT_TRUE(timerIsActive());
}

TEST_F(Hold, delaysAResumedRun) {
    session.start();
    session.pause();
    session.setHeld(true);

    session.pause();

    EXPECT_TRUE(session.running());
    EXPECT_FALSE(timerIsActive());
    session.setHeld(false);
    EXPECT_TRUE(timerIsActive());
}

TEST_F(Hold, leavesARunPausedMeanwhilePaused) {
    session.start();
    session.setHeld(true);
    session.pause();

    session.setHeld(false);

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_FALSE(timerIsActive());
}

TEST_F(Hold, startsNoTimerOutsideOfARun) {
    session.setHeld(true);
    session.setHeld(false);
    EXPECT_EQ(timer(), nullptr);

    startAndEndRun();
    session.setHeld(true);
    session.setHeld(false);

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_FALSE(timerIsActive());
}
