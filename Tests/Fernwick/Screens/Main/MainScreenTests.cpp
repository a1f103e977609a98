#include "Fernwick/Window/WindowTest.hpp"

namespace {

class MainScreen : public WindowTest {};

const QStringList speeds{"Gentle", "Classic", "Swift"};

}  // namespace

TEST_F(MainScreen, namesTheGame) {
    EXPECT_TRUE(shows("FERNWICK"));
    EXPECT_TRUE(shows("A little room to grow."));
}

TEST_F(MainScreen, tellsTheKeys) {
    EXPECT_TRUE(shows("↑ ↓ ← →"));
    EXPECT_TRUE(shows("or WASD to move"));
    EXPECT_TRUE(shows("·   SPACE to pause   ·   R to restart"));
}

TEST_F(MainScreen, invitesBeforeTheFirstRun) {
    EXPECT_TRUE(shows("THE CLASSIC, REPLANTED"));
    EXPECT_TRUE(shows("Find your flow."));
    EXPECT_TRUE(shows("Gather the fruit. Grow a little longer. Stay curious."));
    EXPECT_TRUE(canPress("Let's grow"));
    EXPECT_TRUE(shows("PRESS SPACE"));
}

TEST_F(MainScreen, showsNoCardWhileTheSnakeMoves) {
    startRun();

    EXPECT_TRUE(shows("IN THE FLOW"));
    EXPECT_FALSE(shows("Find your flow."));
    EXPECT_FALSE(shows("PRESS SPACE"));
    EXPECT_FALSE(shows("Game over."));
}

TEST_F(MainScreen, offersToGoOnWhilePaused) {
    pauseRun();

    EXPECT_TRUE(shows("TAKE A BREATH"));
    EXPECT_TRUE(shows("No rush."));
    EXPECT_TRUE(shows("Your garden will be here when you're ready."));
    EXPECT_TRUE(canPress("Keep growing"));
    EXPECT_FALSE(shows("Let's grow"));
}

TEST_F(MainScreen, showsTheGameOverCardAfterTheEnd) {
    endRunAwaitingName();

    EXPECT_TRUE(shows("ANOTHER CHANCE TO GROW"));
    EXPECT_TRUE(shows("Game over."));
    EXPECT_FALSE(shows("PRESS SPACE"));
}

TEST_F(MainScreen, startsTheFirstRunFromTheCard) {
    press("Let's grow");

    EXPECT_TRUE(session.running());
    EXPECT_TRUE(shows("IN THE FLOW"));
}

TEST_F(MainScreen, resumesFromTheCard) {
    pauseRun();
    const SnakeCore::UUID run = session.runID();

    press("Keep growing");

    EXPECT_TRUE(session.running());
    EXPECT_EQ(session.runID(), run);
}

TEST_F(MainScreen, letsTheSpeedBeChosenBeforeTheFirstRun) {
    for (const QString& speed : speeds) {
        EXPECT_TRUE(canPress(speed)) << speed.toStdString();
    }
}

TEST_F(MainScreen, keepsTheSpeedWhileARunIsLive) {
    startRun();
    for (const QString& speed : speeds) {
        EXPECT_FALSE(canPress(speed)) << speed.toStdString();
    }

    session.pause();
    settle();
    for (const QString& speed : speeds) {
        EXPECT_FALSE(canPress(speed)) << speed.toStdString();
    }
}

TEST_F(MainScreen, keepsTheSpeedWhileANameIsAwaited) {
    endRunAwaitingName();

    for (const QString& speed : speeds) {
        EXPECT_FALSE(canPress(speed)) << speed.toStdString();
    }
}

TEST_F(MainScreen, letsTheSpeedBeChosenOnceTheNameIsSettled) {
    skipRun();
    for (const QString& speed : speeds) {
        EXPECT_TRUE(canPress(speed)) << speed.toStdString();
    }

    saveRunAs("Ada");
    for (const QString& speed : speeds) {
        EXPECT_TRUE(canPress(speed)) << speed.toStdString();
    }
}

TEST_F(MainScreen, showsTheBestOfTheSpeedThatIsChosen) {
    preferences.store("best-Swift", 70);

    press("Swift");

    EXPECT_EQ(session.pace(), Pace::swift);
    EXPECT_EQ(session.best(), 70);
    EXPECT_TRUE(button("Swift")->isChecked());
    EXPECT_FALSE(button("Classic")->isChecked());
}

TEST_F(MainScreen, offersThePauseButtonOnlyInALiveRun) {
    EXPECT_FALSE(canPress("Pause or resume"));
    startRun();
    EXPECT_TRUE(canPress("Pause or resume"));
    session.pause();
    settle();
    EXPECT_TRUE(canPress("Pause or resume"));
    endRunAwaitingName();
    EXPECT_FALSE(canPress("Pause or resume"));
    session.skipSaving();
    settle();
    EXPECT_FALSE(canPress("Pause or resume"));
}

TEST_F(MainScreen, pausesAndResumesByTheButton) {
    startRun();

    press("Pause or resume");
    EXPECT_FALSE(session.running());
    press("Pause or resume");
    EXPECT_TRUE(session.running());
}

TEST_F(MainScreen, switchesTheSoundByTheButton) {
    press("Toggle sound effects");
    EXPECT_FALSE(session.sound());
    EXPECT_EQ(onDisk().boolean("sound"), false);

    press("Toggle sound effects");
    EXPECT_TRUE(session.sound());
    EXPECT_EQ(onDisk().boolean("sound"), true);
}

TEST_F(MainScreen, opensTheSheetByTheButtonAndPauses) {
    startRun();

    press("High scores");

    EXPECT_FALSE(session.running());
    EXPECT_TRUE(session.showingScores());
    EXPECT_TRUE(shows("The high scores."));
}

TEST_F(MainScreen, readsOutTheBoardWithItsScore) {
    EXPECT_TRUE(shows("Snake board. Score 0. Use arrow keys or W A S D to move."));

    session.start();
    eatFirstFruit();
    settle();

    EXPECT_TRUE(shows("Snake board. Score 10. Use arrow keys or W A S D to move."));
}
