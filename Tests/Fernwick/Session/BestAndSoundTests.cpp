#include "Fernwick/Session/SessionTest.hpp"
#include "Support/ClosedWalk.hpp"

namespace {

class BestAndSound : public SessionTest {};

using Sounds = std::vector<SoundEffect>;

}  // namespace

TEST_F(BestAndSound, eatingAFruitPlaysPopAndStoresTheNewBestImmediately) {
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.game().score(), 10);
    EXPECT_EQ(sounds.played, Sounds{SoundEffect::pop});
    EXPECT_EQ(session.best(), 10);
    EXPECT_TRUE(session.running());
    EXPECT_EQ(storedPreferences().integer("best-Classic"), 10);
}

TEST_F(BestAndSound, nothingIsPlayedWhileTheSoundIsOff) {
    session.setSound(false);
    session.start();

    eatFirstFruit();
    endRun();

    EXPECT_TRUE(session.game().ended());
    EXPECT_TRUE(sounds.played.empty());
    EXPECT_EQ(storedPreferences().integer("best-Classic"), session.game().score());
}

TEST_F(BestAndSound, aHigherBestIsKept) {
    preferences.store("best-Classic", 400);
    session.choosePace(session.pace());
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.best(), 400);
    EXPECT_EQ(storedPreferences().integer("best-Classic"), 400);
}

TEST_F(BestAndSound, aBestEqualToTheScoreIsNotStoredAgain) {
    preferences.store("best-Classic", 10);
    session.choosePace(session.pace());
    const auto written = std::filesystem::last_write_time(writtenSettings());
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.best(), 10);
    EXPECT_EQ(std::filesystem::last_write_time(writtenSettings()), written);
}

TEST_F(BestAndSound, theBestIsStoredUnderThePaceChosenDuringTheRun) {
    preferences.store("best-Swift", 5);
    session.start();
    session.choosePace(Pace::swift);

    eatFirstFruit();

    EXPECT_EQ(session.best(), 10);
    EXPECT_EQ(storedPreferences().integer("best-Swift"), 10);
    EXPECT_EQ(storedPreferences().integer("best-Classic"), 0);
    EXPECT_EQ(session.runPace(), Pace::classic);
}

TEST_F(BestAndSound, aTickWithoutFruitPlaysNothing) {
    session.start();

    fireTimer();

    EXPECT_TRUE(sounds.played.empty());
}

TEST_F(BestAndSound, theEndOfARunPlaysTink) {
    session.start();
    eatFirstFruit();

    while (session.running()) {
        sounds.played.clear();
        fireTimer();
    }

    EXPECT_EQ(sounds.played, Sounds{SoundEffect::tink});
}

TEST_F(BestAndSound, fillingTheBoardWinsAndPlaysPopAndTinkInTheLastTick) {
    session.start();
    while (session.running()) {
        sounds.played.clear();
        session.key(static_cast<GameKey>(alongCycle(session.game())));
        fireTimer();
    }

    EXPECT_TRUE(session.game().won());
    EXPECT_EQ(session.game().score(), 6120);
    EXPECT_EQ(session.game().snake().size(), 616U);
    EXPECT_EQ(sounds.played, (Sounds{SoundEffect::pop, SoundEffect::tink}));
    EXPECT_TRUE(session.awaitingName());
    EXPECT_EQ(session.best(), 6120);
    EXPECT_EQ(storedPreferences().integer("best-Classic"), 6120);
}
