#include "Fernwick/Session/SessionState.hpp"
#include "Fernwick/Session/SessionTest.hpp"

namespace {

class Key : public SessionTest {
protected:
    /// The head's move at the next tick.
    SnakeCore::Direction nextStep() {
        fireTimer();
        return session.game->direction();
    }
};

constexpr std::uint16_t directionKeys[] = {
    KeyCode::upArrow,   KeyCode::w, KeyCode::downArrow,  KeyCode::s,
    KeyCode::leftArrow, KeyCode::a, KeyCode::rightArrow, KeyCode::d,
};

}  // namespace

TEST_F(Key, upAndWTurnTheSnakeUp) {
    for (const std::uint16_t key : {KeyCode::upArrow, KeyCode::w}) {
        session.start();
        EXPECT_TRUE(session.key(key));
        EXPECT_EQ(nextStep(), SnakeCore::Direction::up);
    }
}

TEST_F(Key, downAndSTurnTheSnakeDown) {
    for (const std::uint16_t key : {KeyCode::downArrow, KeyCode::s}) {
        session.start();
        EXPECT_TRUE(session.key(key));
        EXPECT_EQ(nextStep(), SnakeCore::Direction::down);
    }
}

TEST_F(Key, leftAndATurnTheSnakeLeft) {
    for (const std::uint16_t key : {KeyCode::leftArrow, KeyCode::a}) {
        session.start();
        session.key(KeyCode::upArrow);
        fireTimer();
        EXPECT_TRUE(session.key(key));
        EXPECT_EQ(nextStep(), SnakeCore::Direction::left);
    }
}

TEST_F(Key, rightAndDTurnTheSnakeRight) {
    for (const std::uint16_t key : {KeyCode::rightArrow, KeyCode::d}) {
        session.start();
        session.key(KeyCode::upArrow);
        fireTimer();
        EXPECT_TRUE(session.key(key));
        EXPECT_EQ(nextStep(), SnakeCore::Direction::right);
    }
}

TEST_F(Key, twoQuickTurnsWithinOneTickAreBothTaken) {
    session.start();

    session.key(KeyCode::upArrow);
    session.key(KeyCode::leftArrow);

    EXPECT_EQ(nextStep(), SnakeCore::Direction::up);
    EXPECT_EQ(nextStep(), SnakeCore::Direction::left);
}

TEST_F(Key, forADirectionIsConsumedBeforeTheFirstRunAndDoesNothing) {
    for (const std::uint16_t key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }

    EXPECT_EQ(stateOf(session), SessionState::fresh);
    EXPECT_EQ(session.game, SnakeCore::Game(28, 22));
}

TEST_F(Key, forADirectionIsConsumedWhilePausedAndDoesNothing) {
    session.start();
    session.pause();
    for (const std::uint16_t key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }
    session.pause();

    EXPECT_EQ(nextStep(), SnakeCore::Direction::right);
}

TEST_F(Key, forADirectionIsConsumedAfterTheEndAndDoesNothing) {
    startAndEndRun();
    session.skipSaving();
    const SnakeCore::Game ended = session.game;
    for (const std::uint16_t key : directionKeys) {
        EXPECT_TRUE(session.key(key));
    }

    EXPECT_EQ(session.game, ended);
}

TEST_F(Key, spaceStartsTheFirstRun) {
    EXPECT_TRUE(session.key(KeyCode::space));

    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, spacePausesAndResumes) {
    session.start();

    EXPECT_TRUE(session.key(KeyCode::space));
    EXPECT_EQ(stateOf(session), SessionState::paused);
    EXPECT_TRUE(session.key(KeyCode::space));
    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, spaceStartsANewRunAfterASavedOne) {
    startAndEndRun();
    session.playerName = QStringLiteral("Ada");
    session.saveScore();

    EXPECT_TRUE(session.key(KeyCode::space));

    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, spaceStartsANewRunAfterASkippedOne) {
    startAndEndRun();
    session.skipSaving();

    EXPECT_TRUE(session.key(KeyCode::space));

    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, escapePausesAndNeverResumes) {
    session.start();

    EXPECT_TRUE(session.key(KeyCode::escape));
    EXPECT_EQ(stateOf(session), SessionState::paused);
    EXPECT_TRUE(session.key(KeyCode::escape));
    EXPECT_EQ(stateOf(session), SessionState::paused);
}

TEST_F(Key, escapeIsConsumedBeforeTheFirstRunAndAfterTheEnd) {
    EXPECT_TRUE(session.key(KeyCode::escape));
    EXPECT_EQ(stateOf(session), SessionState::fresh);

    startAndEndRun();
    session.skipSaving();
    EXPECT_TRUE(session.key(KeyCode::escape));
    EXPECT_EQ(stateOf(session), SessionState::skipped);
}

TEST_F(Key, rStartsARunFromEveryStateThatHandlesKeys) {
    EXPECT_TRUE(session.key(KeyCode::r));
    EXPECT_EQ(stateOf(session), SessionState::running);

    fireTimer();
    const SnakeCore::UUID live = session.runID();
    EXPECT_TRUE(session.key(KeyCode::r));
    EXPECT_NE(session.runID(), live);
    EXPECT_EQ(session.game, SnakeCore::Game(28, 22));

    session.pause();
    EXPECT_TRUE(session.key(KeyCode::r));
    EXPECT_EQ(stateOf(session), SessionState::running);

    endRun();
    session.skipSaving();
    EXPECT_TRUE(session.key(KeyCode::r));
    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, returnAndUnknownOnesPassOn) {
    session.start();

    EXPECT_FALSE(session.key(KeyCode::returnKey));
    EXPECT_FALSE(session.key(KeyCode::other));
    EXPECT_FALSE(session.key(12));
    EXPECT_EQ(stateOf(session), SessionState::running);
}

TEST_F(Key, ofAnyKindPassesOnWhileANameIsAwaited) {
    startAndEndRun();
    for (const std::uint16_t key : {KeyCode::w, KeyCode::space, KeyCode::r, KeyCode::escape,
                                    KeyCode::upArrow, KeyCode::returnKey}) {
        EXPECT_FALSE(session.key(key));
    }

    EXPECT_EQ(stateOf(session), SessionState::awaitingName);
}

TEST_F(Key, ofAnyKindPassesOnWhileTheSheetIsUp) {
    session.start();
    session.openScores();
    for (const std::uint16_t key :
         {KeyCode::escape, KeyCode::upArrow, KeyCode::a, KeyCode::space, KeyCode::r}) {
        EXPECT_FALSE(session.key(key));
    }

    EXPECT_EQ(stateOf(session), SessionState::paused);
    EXPECT_TRUE(session.showingScores);
}
