#include "Fernwick/Session/SessionTest.hpp"

namespace {

class SaveScore : public SessionTest {
protected:
    /// Whether a table or a name has been stored.
    [[nodiscard]] bool holdsAnEntry() const {
        return onDisk().bytes("high-scores-v1") || onDisk().text("player-name");
    }
};

}  // namespace

TEST_F(SaveScore, doesNothingWhenNoNameIsAwaited) {
    session.editName(QStringLiteral("Ada"));

    session.saveScore();

    EXPECT_FALSE(session.savedRun());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(std::filesystem::exists(settingsPath()));
}

TEST_F(SaveScore, doesNothingWhileARunIsMoving) {
    session.editName(QStringLiteral("Ada"));
    session.start();

    session.saveScore();

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(session.scores().entries().empty());
}

TEST_F(SaveScore, refusesANameOfBlanks) {
    startAndEndRun();
    session.editName(QStringLiteral(" \t\u3000 "));

    session.saveScore();

    EXPECT_TRUE(session.awaitingName());
    EXPECT_FALSE(session.savedRun());
    EXPECT_EQ(session.playerName(), QStringLiteral(" \t\u3000 "));
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(holdsAnEntry());
}

TEST_F(SaveScore, refusesAnEmptyName) {
    startAndEndRun();

    session.saveScore();

    EXPECT_TRUE(session.awaitingName());
    EXPECT_TRUE(session.scores().entries().empty());
}

TEST_F(SaveScore, recordsTheRunAndStoresTableAndName) {
    startAndEndRun();
    session.editName(QStringLiteral("  Ada "));

    session.saveScore();

    EXPECT_TRUE(session.savedRun());
    EXPECT_FALSE(session.awaitingName());
    EXPECT_EQ(session.playerName(), "Ada");
    ASSERT_EQ(session.scores().entries().size(), 1U);
    const SnakeCore::HighScore& entry = session.scores().entries().front();
    EXPECT_EQ(entry.id, session.runID());
    EXPECT_EQ(entry.name, "Ada");
    EXPECT_EQ(entry.score, session.game().score());
    EXPECT_EQ(entry.pace, "Classic");
    EXPECT_EQ(onDisk().text("player-name"), "Ada");
    EXPECT_EQ(onDisk().bytes("high-scores-v1"),
              QByteArray::fromStdString(session.scores().encoded()));
}

TEST_F(SaveScore, datesTheEntryNow) {
    startAndEndRun();
    session.editName(QStringLiteral("Ada"));
    const SnakeCore::Date before = SnakeCore::Date::now();

    session.saveScore();

    EXPECT_GE(session.scores().entries().front().date, before);
    EXPECT_LE(session.scores().entries().front().date, SnakeCore::Date::now());
}

TEST_F(SaveScore, savesARunOnce) {
    startAndEndRun();
    session.editName(QStringLiteral("Ada"));
    session.saveScore();
    session.editName(QStringLiteral("Grace"));

    session.saveScore();

    EXPECT_EQ(session.scores().entries().size(), 1U);
    EXPECT_EQ(session.playerName(), "Grace");
    EXPECT_EQ(onDisk().text("player-name"), "Ada");
}

TEST_F(SaveScore, keepsThePaceTheRunWasStartedWith) {
    session.choosePace(Pace::swift);
    session.start();
    session.choosePace(Pace::gentle);
    endRun();
    session.editName(QStringLiteral("Ada"));

    session.saveScore();

    EXPECT_EQ(session.scores().entries().front().pace, "Swift");
}

TEST_F(SaveScore, savesAScoreOfZero) {
    session.start();
    session.key(GameKey::up);
    endRun();
    ASSERT_EQ(session.game().score(), 0);
    session.editName(QStringLiteral("Ada"));

    session.saveScore();

    EXPECT_TRUE(session.savedRun());
    EXPECT_EQ(session.scores().entries().front().score, 0);
}

TEST_F(SaveScore, keepsEarlierEntries) {
    for (const char* name : {"Ada", "Grace", "Ada"}) {
        startAndEndRun();
        session.editName(QString::fromUtf8(name));
        session.saveScore();
    }

    EXPECT_EQ(session.scores().entries().size(), 3U);
    EXPECT_EQ(
        SnakeCore::HighScores(onDisk().bytes("high-scores-v1")->toStdString()).entries().size(),
        3U);
}

TEST_F(SaveScore, leavesASkippedRunOut) {
    startAndEndRun();
    session.editName(QStringLiteral("Ada"));

    session.skipSaving();
    session.saveScore();

    EXPECT_FALSE(session.awaitingName());
    EXPECT_FALSE(session.savedRun());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(holdsAnEntry());
}
