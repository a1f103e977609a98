#include "Fernwick/Session/SessionTest.hpp"

namespace {

class StoredSettings : public SessionTest {
protected:
    /// Another session that reads the same settings file, as after a restart of the game.
    struct NextLaunch {
        explicit NextLaunch(const std::filesystem::path& path) : preferences(path) {}

        Storage::PreferencesFile preferences;
        SoundRecorder sounds;
        Session session{preferences, sounds};
    };

    [[nodiscard]] NextLaunch launchAgain() const { return NextLaunch(writtenSettings()); }
};

}  // namespace

TEST_F(StoredSettings, haveDefaultsOnTheFirstLaunch) {
    EXPECT_EQ(session.pace(), Pace::classic);
    EXPECT_EQ(session.best(), 0);
    EXPECT_TRUE(session.sound());
    EXPECT_TRUE(session.scores().entries().empty());
    EXPECT_FALSE(session.hasStoredScores());
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

TEST_F(StoredSettings, tellWhetherAScoreIsStored) {
    session.setSound(false);
    session.editName("Ada");
    EXPECT_FALSE(session.hasStoredScores());

    session.start();
    eatFirstFruit();
    EXPECT_TRUE(session.hasStoredScores());
    EXPECT_TRUE(launchAgain().session.hasStoredScores());
}

TEST_F(StoredSettings, tellWhetherATableIsStored) {
    preferences.store("high-scores-v1", QByteArray("not a table"));

    EXPECT_TRUE(session.hasStoredScores());
}

TEST_F(StoredSettings, areNotWrittenOnTheFirstLaunch) {
    EXPECT_FALSE(std::filesystem::exists(writtenSettings()));
}

TEST_F(StoredSettings, includeABestForEachPace) {
    preferences.store("best-Classic", 250);
    preferences.store("best-Gentle", 30);
    NextLaunch next = launchAgain();

    EXPECT_EQ(next.session.best(), 250);
    next.session.choosePace(Pace::gentle);
    EXPECT_EQ(next.session.best(), 30);
    next.session.choosePace(Pace::swift);
    EXPECT_EQ(next.session.best(), 0);
}

TEST_F(StoredSettings, treatANonNumericBestAsZero) {
    preferences.store("best-Classic", QStringLiteral("250"));

    EXPECT_EQ(launchAgain().session.best(), 0);
}

TEST_F(StoredSettings, restoreSoundThatWasSwitchedOff) {
    session.setSound(false);

    EXPECT_FALSE(session.sound());
    EXPECT_FALSE(launchAgain().session.sound());
}

TEST_F(StoredSettings, restoreSoundThatWasSwitchedBackOn) {
    session.setSound(false);
    session.setSound(true);

    EXPECT_TRUE(launchAgain().session.sound());
    EXPECT_EQ(storedPreferences().boolean("sound"), true);
}

TEST_F(StoredSettings, areNotWrittenWhenTheSoundSettingIsUnchanged) {
    session.setSound(true);

    EXPECT_FALSE(std::filesystem::exists(writtenSettings()));
}

TEST_F(StoredSettings, ignoreASoundSettingThatIsNotABool) {
    for (const QCborValue& stored :
         {QCborValue(QStringLiteral("false")), QCborValue(0), QCborValue(0.0),
          QCborValue(QByteArray("\0", 1)), QCborValue(QCborValue::Null)}) {
        preferences.store("sound", stored);

        EXPECT_TRUE(launchAgain().session.sound());
    }
}

TEST_F(StoredSettings, restoreTheLastName) {
    preferences.store("player-name", QStringLiteral("Ada"));

    EXPECT_EQ(launchAgain().session.playerName(), "Ada");
}

TEST_F(StoredSettings, ignoreANameThatIsNotText) {
    preferences.store("player-name", QByteArray("Ada"));

    EXPECT_EQ(launchAgain().session.playerName(), "");
}

TEST_F(StoredSettings, treatInvalidScoreDataAsAnEmptyTable) {
    for (const QCborValue& stored : {QCborValue(QByteArray("[{\"id\":")), QCborValue(QByteArray()),
                                     QCborValue(QStringLiteral("[]")), QCborValue(7)}) {
        preferences.store("high-scores-v1", stored);

        EXPECT_TRUE(launchAgain().session.scores().entries().empty());
    }
}

TEST_F(StoredSettings, restoreASavedRunAtTheNextLaunch) {
    session.start();
    eatFirstFruit();
    endRun();
    saveScoreAs("  Ada   Lovelace ");

    const NextLaunch next = launchAgain();

    ASSERT_EQ(next.session.scores().entries().size(), 1U);
    EXPECT_EQ(next.session.scores(), session.scores());
    EXPECT_EQ(next.session.scores().entries().front().score, session.game().score());
    EXPECT_EQ(next.session.playerName(), "Ada Lovelace");
    EXPECT_EQ(next.session.best(), session.game().score());
    EXPECT_EQ(next.session.pace(), Pace::classic);
}

TEST_F(StoredSettings, doNotIncludeThePace) {
    session.choosePace(Pace::swift);
    session.start();

    EXPECT_EQ(launchAgain().session.pace(), Pace::classic);
}
