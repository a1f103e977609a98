#include <QTest>

#include "Fernwick/Session/SessionTest.hpp"

using std::chrono_literals::operator""ms;

namespace {

class RunLoop : public SessionTest {};

}  // namespace

TEST_F(RunLoop, startBeginsAFreshRunAtTheChosenPace) {
    const SnakeCore::UUID before = session.runID();
    session.choosePace(Pace::gentle);

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
    EXPECT_NE(session.runID(), before);
    EXPECT_EQ(session.runPace(), Pace::gentle);
    EXPECT_FALSE(session.savedRun());
    EXPECT_TRUE(timerIsActive());
}

TEST_F(RunLoop, timerUsesTheIntervalOfThePace) {
    for (const Pace pace : allPaces) {
        session.choosePace(pace);
        session.start();

        EXPECT_EQ(timer()->intervalAsDuration(), tickInterval(pace));
        EXPECT_EQ(timer()->timerType(), Qt::PreciseTimer);
        EXPECT_FALSE(timer()->isSingleShot());
    }
}

TEST_F(RunLoop, timerAdvancesTheRunInRealTime) {
    session.choosePace(Pace::swift);
    session.start();

    EXPECT_TRUE(QTest::qWaitFor([&] { return session.game().snake()[0].x >= 16; }));
    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(RunLoop, eachTickMovesTheSnakeOneCell) {
    session.start();

    fireTimer();

    EXPECT_EQ(session.game().snake()[0], (SnakeCore::Cell{15, 11}));
    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(RunLoop, startReplacesARunningRunAndItsTimer) {
    session.start();
    fireTimer();
    const SnakeCore::UUID first = session.runID();
    const QPointer<QTimer> firstTimer = timer();

    session.start();

    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
    EXPECT_NE(session.runID(), first);
    EXPECT_TRUE(firstTimer.isNull());
    EXPECT_EQ(session.findChildren<QTimer*>().size(), 1);
    EXPECT_TRUE(timerIsActive());
}

TEST_F(RunLoop, startReplacesAPausedRun) {
    session.start();
    fireTimer();
    session.pause();

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
}

TEST_F(RunLoop, startBeginsANewRunAfterASavedOne) {
    startAndEndRun();
    saveScoreAs("Ada");
    const SnakeCore::UUID saved = session.runID();

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_NE(session.runID(), saved);
    EXPECT_FALSE(session.savedRun());
}

TEST_F(RunLoop, startBeginsANewRunAfterASkippedOne) {
    startAndEndRun();
    session.skipSaving();

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(RunLoop, startIsRefusedWhileANameIsAwaited) {
    startAndEndRun();
    const SnakeCore::UUID ended = session.runID();

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_EQ(session.runID(), ended);
    EXPECT_TRUE(session.game().ended());
}

TEST_F(RunLoop, startIsRefusedWhileTheScoreSheetIsOpen) {
    session.openScores();
    const SnakeCore::UUID before = session.runID();

    session.start();

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_EQ(session.runID(), before);
    EXPECT_EQ(timer(), nullptr);
}

TEST_F(RunLoop, pauseStopsTheTimer) {
    session.start();

    session.pause();

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_FALSE(timerIsActive());
}

TEST_F(RunLoop, resumeCreatesANewTimerAtTheCurrentPace) {
    session.start();
    const QPointer<QTimer> firstTimer = timer();
    session.pause();
    session.choosePace(Pace::swift);

    session.pause();

    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_TRUE(firstTimer.isNull());
    EXPECT_EQ(timer()->intervalAsDuration(), 85ms);
}

TEST_F(RunLoop, choosingAPaceDoesNotChangeARunningTimer) {
    session.start();

    session.choosePace(Pace::swift);

    EXPECT_EQ(timer()->intervalAsDuration(), 130ms);
}

TEST_F(RunLoop, pauseIsRefusedBeforeTheFirstRun) {
    session.pause();

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
}

TEST_F(RunLoop, pauseIsRefusedAfterTheEnd) {
    startAndEndRun();
    session.pause();
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);

    session.skipSaving();
    session.pause();
    EXPECT_EQ(session.phase(), Session::Phase::skipped);

    startAndEndRun();
    saveScoreAs("Ada");
    session.pause();
    EXPECT_EQ(session.phase(), Session::Phase::saved);
    EXPECT_FALSE(timerIsActive());
}

TEST_F(RunLoop, resumeIsRefusedWhileTheScoreSheetIsOpen) {
    session.start();
    session.openScores();

    session.pause();

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_FALSE(timerIsActive());
}

TEST_F(RunLoop, timeoutsAfterAPauseAreIgnored) {
    session.start();
    session.pause();

    fireTimer();

    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
}

TEST_F(RunLoop, timeoutsAfterTheEndAreIgnored) {
    startAndEndRun();
    const SnakeCore::Game ended = session.game();
    sounds.played.clear();

    fireTimer();

    EXPECT_EQ(session.game(), ended);
    EXPECT_TRUE(sounds.played.empty());
}

TEST_F(RunLoop, theEndOfARunAwaitsAName) {
    startAndEndRun();

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_FALSE(timerIsActive());
}

TEST_F(RunLoop, aRunWithAScoreOfZeroAwaitsANameToo) {
    session.start();
    session.key(GameKey::up);
    endRun();

    EXPECT_EQ(session.game().score(), 0);
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_FALSE(std::filesystem::exists(writtenSettings()));
}

TEST_F(RunLoop, openScoresSelectsTheChosenPaceInAnyPhase) {
    session.choosePace(Pace::gentle);
    session.openScores();
    EXPECT_TRUE(session.showingScores());
    EXPECT_EQ(session.scorePace(), Pace::gentle);
    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    session.closeScores();

    startAndEndRun();
    session.choosePace(Pace::swift);
    session.openScores();
    EXPECT_EQ(session.scorePace(), Pace::swift);
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
}

TEST_F(RunLoop, openScoresPausesARunningRun) {
    session.start();

    session.openScores();

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_TRUE(session.showingScores());
    EXPECT_EQ(session.scorePace(), session.pace());
    EXPECT_FALSE(timerIsActive());
}

TEST_F(RunLoop, openAndCloseScoresLeaveAPausedRunPaused) {
    session.start();
    session.pause();

    session.openScores();
    session.closeScores();

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    session.pause();
    EXPECT_EQ(session.phase(), Session::Phase::running);
}
