#include <QCborArray>

#include "Fernwick/Session/SessionTest.hpp"
#include "Support/FileContent.hpp"

namespace {

class SaveScore : public SessionTest {
protected:
    [[nodiscard]] bool tableOrNameStored() const {
        return storedPreferences().bytes("high-scores-v1") ||
               storedPreferences().text("player-name");
    }
};

}  // namespace

TEST_F(SaveScore, doesNothingBeforeTheFirstRun) {
    saveScoreAs("Ada");

    EXPECT_FALSE(session.savedRun());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(std::filesystem::exists(writtenSettings()));
}

TEST_F(SaveScore, doesNothingDuringARun) {
    session.editName(QStringLiteral("Ada"));
    session.start();

    session.saveScore();

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(session.scores().entries().empty());
}

TEST_F(SaveScore, refusesANameOfWhiteSpace) {
    startAndEndRun();

    saveScoreAs(" \t\u3000 ");

    EXPECT_TRUE(session.awaitingName());
    EXPECT_FALSE(session.savedRun());
    EXPECT_EQ(session.playerName(), QStringLiteral(" \t\u3000 "));
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(tableOrNameStored());
}

TEST_F(SaveScore, refusesAnEmptyName) {
    startAndEndRun();

    session.saveScore();

    EXPECT_TRUE(session.awaitingName());
    EXPECT_TRUE(session.scores().entries().empty());
}

TEST_F(SaveScore, recordsTheRunAndStoresTableAndName) {
    startAndEndRun();

    saveScoreAs("  Ada ");

    EXPECT_TRUE(session.savedRun());
    EXPECT_FALSE(session.awaitingName());
    EXPECT_EQ(session.playerName(), "Ada");
    ASSERT_EQ(session.scores().entries().size(), 1U);
    const SnakeCore::HighScore& entry = session.scores().entries().front();
    EXPECT_EQ(entry.id, session.runID());
    EXPECT_EQ(entry.name, "Ada");
    EXPECT_EQ(entry.score, session.game().score());
    EXPECT_EQ(entry.pace, "Classic");
    EXPECT_EQ(storedPreferences().text("player-name"), "Ada");
    EXPECT_EQ(storedPreferences().bytes("high-scores-v1"),
              QByteArray::fromStdString(session.scores().encoded()));
}

TEST_F(SaveScore, datesTheEntryWithTheCurrentTime) {
    startAndEndRun();
    session.editName(QStringLiteral("Ada"));
    const SnakeCore::Date before = SnakeCore::Date::now();

    session.saveScore();

    EXPECT_GE(session.scores().entries().front().date, before);
    EXPECT_LE(session.scores().entries().front().date, SnakeCore::Date::now());
}

TEST_F(SaveScore, savesARunOnlyOnce) {
    startAndEndRun();
    saveScoreAs("Ada");

    saveScoreAs("Grace");

    EXPECT_EQ(session.scores().entries().size(), 1U);
    EXPECT_EQ(session.playerName(), "Grace");
    EXPECT_EQ(storedPreferences().text("player-name"), "Ada");
}

TEST_F(SaveScore, recordsThePaceTheRunWasStartedWith) {
    session.choosePace(Pace::swift);
    session.start();
    session.choosePace(Pace::gentle);
    endRun();

    saveScoreAs("Ada");

    EXPECT_EQ(session.scores().entries().front().pace, "Swift");
}

TEST_F(SaveScore, savesAScoreOfZero) {
    session.start();
    session.key(GameKey::up);
    endRun();
    ASSERT_EQ(session.game().score(), 0);

    saveScoreAs("Ada");

    EXPECT_TRUE(session.savedRun());
    EXPECT_EQ(session.scores().entries().front().score, 0);
}

TEST_F(SaveScore, keepsEarlierEntries) {
    for (const char* name : {"Ada", "Grace", "Ada"}) {
        startAndEndRun();
        saveScoreAs(name);
    }

    EXPECT_EQ(session.scores().entries().size(), 3U);
    EXPECT_EQ(SnakeCore::HighScores(storedPreferences().bytes("high-scores-v1")->toStdString())
                  .entries()
                  .size(),
              3U);
}

TEST_F(SaveScore, copiesAStoredTableThatCannotBeReadBeforeItIsReplaced) {
    const std::vector<QCborValue> damaged{QByteArray("[{\"id\":"), QByteArray(),
                                          QStringLiteral("[]"), QCborArray{1}};
    for (std::size_t i = 0; i < damaged.size(); ++i) {
        preferences.store("high-scores-v1", damaged[i]);
        Session next(preferences, sounds);
        next.start();
        while (next.running()) {
            QMetaObject::invokeMethod(next.findChild<QTimer*>(), "timeout");
        }
        const QByteArray before = readFile(writtenSettings());

        next.editName(QStringLiteral("Ada"));
        next.saveScore();

        EXPECT_EQ(storedPreferences().bytes("high-scores-v1"),
                  QByteArray::fromStdString(next.scores().encoded()));
        EXPECT_EQ(readFile(writtenSettings().native() + ".unreadable-" + std::to_string(i + 1)),
                  before);
    }
}

TEST_F(SaveScore, copiesNothingIfTheStoredTableIsValid) {
    preferences.store("high-scores-v1", QByteArray("[]"));
    for (int launch = 0; launch < 2; ++launch) {
        Session next(preferences, sounds);
        next.start();
        while (next.running()) {
            QMetaObject::invokeMethod(next.findChild<QTimer*>(), "timeout");
        }
        next.editName(QStringLiteral("Ada"));
        next.saveScore();
    }

    EXPECT_FALSE(std::filesystem::exists(writtenSettings().native() + ".unreadable-1"));
}

TEST_F(SaveScore, doesNothingAfterSkipping) {
    startAndEndRun();
    session.editName(QStringLiteral("Ada"));

    session.skipSaving();
    session.saveScore();

    EXPECT_FALSE(session.awaitingName());
    EXPECT_FALSE(session.savedRun());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(tableOrNameStored());
}
