#include "Fernwick/Session/SessionTest.hpp"

namespace {

class Settings : public SessionTest {
protected:
    /// A second session, as the next start of the program would make it.
    struct NextStart {
        explicit NextStart(const std::filesystem::path& path) : preferences(path) {}

        Storage::PreferencesFile preferences;
        HeardSounds sounds;
        Session session{preferences, sounds};
    };

    [[nodiscard]] NextStart nextStart() const { return NextStart(settingsPath()); }
};

}  // namespace

TEST_F(Settings, ofAFirstLaunchAreTheDefaults) {
    EXPECT_EQ(session.pace(), Pace::classic);
    EXPECT_EQ(session.best(), 0);
    EXPECT_TRUE(session.sound());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_TRUE(session.playerName().isEmpty());
    EXPECT_FALSE(session.running());
    EXPECT_FALSE(session.started());
    EXPECT_FALSE(session.awaitingName());
    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(session.savedRun());
    EXPECT_EQ(session.scorePace(), Pace::classic);
    EXPECT_EQ(session.runPace(), Pace::classic);
    EXPECT_EQ(session.game(), SnakeCore::Game(28, 22));
    EXPECT_EQ(timer(), nullptr);
}

TEST_F(Settings, ofAFirstLaunchWriteNothing) {
    EXPECT_FALSE(std::filesystem::exists(settingsPath()));
}

TEST_F(Settings, holdABestForEachPace) {
    preferences.store("best-Classic", 250);
    preferences.store("best-Gentle", 30);
    NextStart next = nextStart();

    EXPECT_EQ(next.session.best(), 250);
    next.session.choosePace(Pace::gentle);
    EXPECT_EQ(next.session.best(), 30);
    next.session.choosePace(Pace::swift);
    EXPECT_EQ(next.session.best(), 0);
}

TEST_F(Settings, giveABestOfZeroForWhatIsNoNumber) {
    preferences.store("best-Classic", QStringLiteral("250"));

    EXPECT_EQ(nextStart().session.best(), 0);
}

TEST_F(Settings, keepTheSoundSwitchedOff) {
    session.setSound(false);

    EXPECT_FALSE(session.sound());
    EXPECT_FALSE(nextStart().session.sound());
}

TEST_F(Settings, keepTheSoundSwitchedOnAgain) {
    session.setSound(false);
    session.setSound(true);

    EXPECT_TRUE(nextStart().session.sound());
    EXPECT_EQ(onDisk().boolean("sound"), true);
}

TEST_F(Settings, storeNoSoundThatDidNotChange) {
    session.setSound(true);

    EXPECT_FALSE(std::filesystem::exists(settingsPath()));
}

TEST_F(Settings, takeASoundThatIsNoBoolForAbsent) {
    for (const QCborValue& stored :
         {QCborValue(QStringLiteral("false")), QCborValue(0), QCborValue(0.0),
          QCborValue(QByteArray("\0", 1)), QCborValue(QCborValue::Null)}) {
        preferences.store("sound", stored);

        EXPECT_TRUE(nextStart().session.sound());
    }
}

TEST_F(Settings, offerTheLastNameAgain) {
    preferences.store("player-name", QStringLiteral("Ada"));

    EXPECT_EQ(nextStart().session.playerName(), "Ada");
}

TEST_F(Settings, takeANameThatIsNoTextForAbsent) {
    preferences.store("player-name", QByteArray("Ada"));

    EXPECT_EQ(nextStart().session.playerName(), "");
}

TEST_F(Settings, giveAnEmptyTableForBytesThatAreNone) {
    for (const QCborValue& stored : {QCborValue(QByteArray("[{\"id\":")), QCborValue(QByteArray()),
                                     QCborValue(QStringLiteral("[]")), QCborValue(7)}) {
        preferences.store("high-scores-v1", stored);

        EXPECT_TRUE(nextStart().session.scores().entries().empty());
    }
}

TEST_F(Settings, bringASavedRunBackAtTheNextStart) {
    session.start();
    eatFirstFruit();
    endRun();
    session.editName(QStringLiteral("  Ada   Lovelace "));
    session.saveScore();

    const NextStart next = nextStart();

    ASSERT_EQ(next.session.scores().entries().size(), 1U);
    EXPECT_EQ(next.session.scores(), session.scores());
    EXPECT_EQ(next.session.scores().entries().front().score, session.game().score());
    EXPECT_EQ(next.session.playerName(), "Ada Lovelace");
    EXPECT_EQ(next.session.best(), session.game().score());
    EXPECT_EQ(next.session.pace(), Pace::classic);
}

TEST_F(Settings, doNotKeepThePace) {
    session.choosePace(Pace::swift);
    session.start();

    EXPECT_EQ(nextStart().session.pace(), Pace::classic);
}
