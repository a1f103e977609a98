#include "Fernwick/Session/SessionTest.hpp"
#include "Support/ClosedWalk.hpp"

namespace {

class Gathering : public SessionTest {};

using Sounds = std::vector<SoundEffect>;

}  // namespace

TEST_F(Gathering, popsAndRaisesTheBestAtOnce) {
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.game().score(), 10);
    EXPECT_EQ(sounds.heard, Sounds{SoundEffect::pop});
    EXPECT_EQ(session.best(), 10);
    EXPECT_TRUE(session.running());
    EXPECT_EQ(onDisk().integer("best-Classic"), 10);
}

TEST_F(Gathering, isSilentWithTheSoundOff) {
    session.setSound(false);
    session.start();

    eatFirstFruit();
    endRun();

    EXPECT_TRUE(session.game().ended());
    EXPECT_TRUE(sounds.heard.empty());
    EXPECT_EQ(onDisk().integer("best-Classic"), session.game().score());
}

TEST_F(Gathering, leavesAHigherBestAlone) {
    preferences.store("best-Classic", 400);
    session.choosePace(session.pace());
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.best(), 400);
    EXPECT_EQ(onDisk().integer("best-Classic"), 400);
}

TEST_F(Gathering, leavesABestOfTheSameScoreAlone) {
    preferences.store("best-Classic", 10);
    session.choosePace(session.pace());
    const auto written = std::filesystem::last_write_time(settingsPath());
    session.start();

    eatFirstFruit();

    EXPECT_EQ(session.best(), 10);
    EXPECT_EQ(std::filesystem::last_write_time(settingsPath()), written);
}

TEST_F(Gathering, comparesTheBestUnderThePaceChosenMeanwhile) {
    preferences.store("best-Swift", 5);
    session.start();
    session.choosePace(Pace::swift);

    eatFirstFruit();

    EXPECT_EQ(session.best(), 10);
    EXPECT_EQ(onDisk().integer("best-Swift"), 10);
    EXPECT_EQ(onDisk().integer("best-Classic"), 0);
    EXPECT_EQ(session.runPace(), Pace::classic);
}

TEST_F(Gathering, makesNoSoundOnATickThatOnlyMoves) {
    session.start();

    fireTimer();

    EXPECT_TRUE(sounds.heard.empty());
}

TEST_F(Gathering, endsWithATink) {
    session.start();
    eatFirstFruit();
    sounds.heard.clear();

    while (session.running()) {
        sounds.heard.clear();
        fireTimer();
    }

    EXPECT_EQ(sounds.heard, Sounds{SoundEffect::tink});
}

TEST_F(Gathering, allTheGardenHoldsWinsWithBothSoundsInTheLastTick) {
    session.start();
    while (session.running()) {
        sounds.heard.clear();
        session.key(static_cast<GameKey>(alongCycle(session.game())));
        fireTimer();
    }

    EXPECT_TRUE(session.game().won());
    EXPECT_EQ(session.game().score(), 6120);
    EXPECT_EQ(session.game().snake().size(), 616U);
    EXPECT_EQ(sounds.heard, (Sounds{SoundEffect::pop, SoundEffect::tink}));
    EXPECT_TRUE(session.awaitingName());
    EXPECT_EQ(session.best(), 6120);
    EXPECT_EQ(onDisk().integer("best-Classic"), 6120);
}
