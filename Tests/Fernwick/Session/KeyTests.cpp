#include "Fernwick/Session/SessionTest.hpp"

namespace {

class GameKeys : public SessionTest {
protected:
    /// The direction the snake moves in at the next tick.
    SnakeCore::Direction nextStep() {
        fireTimer();
        return session.game().direction();
    }
};

constexpr GameKey directionKeys[] = {GameKey::up, GameKey::down, GameKey::left, GameKey::right};
constexpr GameKey allKeys[] = {GameKey::up,    GameKey::down,   GameKey::left,   GameKey::right,
                               GameKey::space, GameKey::escape, GameKey::restart};

}  // namespace

TEST_F(GameKeys, upTurnsTheSnakeUp) {
    session.start();

    EXPECT_TRUE(session.key(GameKey::up));
    EXPECT_EQ(nextStep(), SnakeCore::Direction::up);
}

TEST_F(GameKeys, downTurnsTheSnakeDown) {
    session.start();

    EXPECT_TRUE(session.key(GameKey::down));
    EXPECT_EQ(nextStep(), SnakeCore::Direction::down);
}

TEST_F(GameKeys, leftAndRightTurnASnakeMovingUp) {
    for (const auto& [key, direction] : {std::pair(GameKey::left, SnakeCore::Direction::left),
                                         std::pair(GameKey::right, SnakeCore::Direction::right)}) {
        session.start();
        session.key(GameKey::up);
        fireTimer();

        EXPECT_TRUE(session.key(key));
        EXPECT_EQ(nextStep(), direction);
    }
}

TEST_F(GameKeys, twoTurnsWithinOneTickBothTakeEffect) {
    session.start();

    session.key(GameKey::up);
    session.key(GameKey::left);

    EXPECT_EQ(nextStep(), SnakeCore::Direction::up);
    EXPECT_EQ(nextStep(), SnakeCore::Direction::left);
}

TEST_F(GameKeys, directionsAreConsumedButIgnoredBeforeTheFirstRun) {
    for (const GameKey key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
}

TEST_F(GameKeys, directionsAreConsumedButIgnoredWhilePaused) {
    session.start();
    session.pause();
    for (const GameKey key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }
    session.pause();

    EXPECT_EQ(nextStep(), SnakeCore::Direction::right);
}

TEST_F(GameKeys, directionsAreConsumedButIgnoredAfterTheEnd) {
    startAndEndRun();
    session.skipSaving();
    const SnakeCore::Game ended = session.game();
    for (const GameKey key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }

    EXPECT_EQ(session.game(), ended);
}

TEST_F(GameKeys, spaceStartsTheFirstRun) {
    EXPECT_TRUE(session.key(GameKey::space));

    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(GameKeys, spacePausesAndResumes) {
    session.start();

    EXPECT_TRUE(session.key(GameKey::space));
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_TRUE(session.key(GameKey::space));
    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(GameKeys, spaceStartsANewRunAfterASavedOne) {
    startAndEndRun();
    saveScoreAs("Ada");

    EXPECT_TRUE(session.key(GameKey::space));

    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(GameKeys, spaceStartsANewRunAfterASkippedOne) {
    startAndEndRun();
    session.skipSaving();

    EXPECT_TRUE(session.key(GameKey::space));

    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(GameKeys, escapePausesAndNeverResumes) {
    session.start();

    EXPECT_TRUE(session.key(GameKey::escape));
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_TRUE(session.key(GameKey::escape));
    EXPECT_EQ(session.phase(), Session::Phase::paused);
}

TEST_F(GameKeys, escapeIsConsumedBeforeTheFirstRunAndAfterTheEnd) {
    EXPECT_TRUE(session.key(GameKey::escape));
    EXPECT_EQ(session.phase(), Session::Phase::fresh);

    startAndEndRun();
    session.skipSaving();
    EXPECT_TRUE(session.key(GameKey::escape));
    EXPECT_EQ(session.phase(), Session::Phase::skipped);
}

TEST_F(GameKeys, restartStartsARunFromEveryPhaseThatHandlesKeys) {
    EXPECT_TRUE(session.key(GameKey::restart));
    EXPECT_EQ(session.phase(), Session::Phase::running);

    fireTimer();
    const SnakeCore::UUID interrupted = session.runID();
    EXPECT_TRUE(session.key(GameKey::restart));
    EXPECT_NE(session.runID(), interrupted);
    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));

    session.pause();
    EXPECT_TRUE(session.key(GameKey::restart));
    EXPECT_EQ(session.phase(), Session::Phase::running);

    endRun();
    session.skipSaving();
    EXPECT_TRUE(session.key(GameKey::restart));
    EXPECT_EQ(session.phase(), Session::Phase::running);
}

TEST_F(GameKeys, areNotConsumedWhileANameIsAwaited) {
    startAndEndRun();
    for (const GameKey key : allKeys) {
        EXPECT_FALSE(session.key(key));
    }

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
}

TEST_F(GameKeys, areNotConsumedWhileTheScoreSheetIsOpen) {
    session.start();
    session.openScores();
    for (const GameKey key : allKeys) {
        EXPECT_FALSE(session.key(key));
    }

    EXPECT_EQ(session.phase(), Session::Phase::paused);
    EXPECT_TRUE(session.showingScores());
}
