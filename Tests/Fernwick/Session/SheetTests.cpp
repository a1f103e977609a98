#include "Fernwick/Session/SessionTest.hpp"

namespace {

constexpr std::array allSheets{Session::Sheet::scores, Session::Sheet::keys, Session::Sheet::about};

class Sheets : public SessionTest {};

}  // namespace

TEST_F(Sheets, pauseARunningRun) {
    for (const Session::Sheet sheet : allSheets) {
        session.start();

        session.openSheet(sheet);

        EXPECT_EQ(session.sheet(), sheet);
        EXPECT_EQ(session.phase(), Session::Phase::paused);
        EXPECT_FALSE(timerIsActive());
        session.closeSheet();
        EXPECT_EQ(session.phase(), Session::Phase::paused);
    }
}

TEST_F(Sheets, letNoRunStartOrResumeBelow) {
    for (const Session::Sheet sheet : allSheets) {
        session.start();
        const SnakeCore::UUID run = session.runID();
        session.openSheet(sheet);

        session.pause();
        session.start();

        EXPECT_EQ(session.phase(), Session::Phase::paused);
        EXPECT_EQ(session.runID(), run);
        session.closeSheet();
    }
}

TEST_F(Sheets, leaveTheKeysOfTheGameToTheirControls) {
    for (const Session::Sheet sheet : allSheets) {
        session.openSheet(sheet);

        EXPECT_FALSE(session.key(GameKey::space));
        EXPECT_FALSE(session.key(GameKey::escape));
        EXPECT_FALSE(session.key(GameKey::left));
        EXPECT_EQ(session.phase(), Session::Phase::fresh);
        session.closeSheet();
        EXPECT_TRUE(session.key(GameKey::left));
    }
}

TEST_F(Sheets, replaceEachOther) {
    session.openScores();

    session.openSheet(Session::Sheet::keys);
    EXPECT_FALSE(session.showingScores());
    EXPECT_EQ(session.sheet(), Session::Sheet::keys);
    session.closeScores();
    EXPECT_EQ(session.sheet(), Session::Sheet::keys);

    session.closeSheet();
    EXPECT_EQ(session.sheet(), Session::Sheet::none);
}

TEST_F(Sheets, announceOneChangeEach) {
    int changes = 0;
    QObject::connect(&session, &Session::changed, [&] { ++changes; });

    session.openSheet(Session::Sheet::about);
    EXPECT_EQ(changes, 1);
    session.closeSheet();
    EXPECT_EQ(changes, 2);
    session.closeSheet();
    EXPECT_EQ(changes, 2);
}
