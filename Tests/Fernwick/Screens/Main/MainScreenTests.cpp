#include "Fernwick/Window/WindowTest.hpp"

namespace {

class MainScreen : public WindowTest {};

}  // namespace

TEST_F(MainScreen, showsTheTitleAndTagline) {
    EXPECT_TRUE(shows("FERNWICK"));
    EXPECT_TRUE(shows("A little room to grow."));
}

TEST_F(MainScreen, showsTheKeyHints) {
    EXPECT_TRUE(shows("↑ ↓ ← →"));
    EXPECT_TRUE(shows("or WASD to move"));
    EXPECT_TRUE(shows("·   SPACE to pause   ·   R to restart"));
}

TEST_F(MainScreen, showsTheStartCardBeforeTheFirstRun) {
    EXPECT_TRUE(shows("THE CLASSIC, REPLANTED"));
    EXPECT_TRUE(shows("Find your flow."));
    EXPECT_TRUE(shows("Gather the fruit. Grow a little longer. Stay curious."));
    EXPECT_TRUE(canPress("Let's grow"));
    EXPECT_TRUE(shows("PRESS SPACE"));
}

TEST_F(MainScreen, showsNoCardWhileRunning) {
    startRun();

    EXPECT_TRUE(shows("IN THE FLOW"));
    EXPECT_FALSE(shows("Find your flow."));
    EXPECT_FALSE(shows("PRESS SPACE"));
    EXPECT_FALSE(shows("Game over."));
}

TEST_F(MainScreen, showsThePauseCardWhilePaused) {
    startAndPauseRun();

    EXPECT_TRUE(shows("TAKE A BREATH"));
    EXPECT_TRUE(shows("No rush."));
    EXPECT_TRUE(shows("Your garden will be here when you're ready."));
    EXPECT_TRUE(canPress("Keep growing"));
    EXPECT_FALSE(shows("Let's grow"));
}

TEST_F(MainScreen, showsTheGameOverCardAfterTheEnd) {
    playToNameEntry();

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
    startAndPauseRun();
    const SnakeCore::UUID run = session.runID();

    press("Keep growing");

    EXPECT_TRUE(session.running());
    EXPECT_EQ(session.runID(), run);
}

TEST_F(MainScreen, enablesTheSpeedsOnlyBetweenRuns) {
    inEveryPhase([this](Session::Phase phase) {
        for (const char* speed : {"Gentle", "Classic", "Swift"}) {
            EXPECT_EQ(canPress(speed), betweenRuns(phase)) << speed;
        }
    });
}

TEST_F(MainScreen, loadsTheBestOfTheChosenSpeed) {
    preferences.store("best-Swift", 70);

    press("Swift");

    EXPECT_EQ(session.pace(), Pace::swift);
    EXPECT_EQ(session.best(), 70);
    EXPECT_TRUE(button("Swift")->isChecked());
    EXPECT_FALSE(button("Classic")->isChecked());
}

TEST_F(MainScreen, enablesThePauseButtonOnlyDuringARun) {
    inEveryPhase(
        [this](Session::Phase phase) { EXPECT_EQ(canPress("Pause or resume"), inRun(phase)); });
}

TEST_F(MainScreen, pausesAndResumesWithTheButton) {
    startRun();

    press("Pause or resume");
    EXPECT_FALSE(session.running());
    press("Pause or resume");
    EXPECT_TRUE(session.running());
}

TEST_F(MainScreen, togglesTheSoundWithTheButton) {
    press("Toggle sound effects");
    EXPECT_FALSE(session.sound());
    EXPECT_EQ(storedPreferences().boolean("sound"), false);

    press("Toggle sound effects");
    EXPECT_TRUE(session.sound());
    EXPECT_EQ(storedPreferences().boolean("sound"), true);
}

TEST_F(MainScreen, pausesAndOpensTheScoreSheetWithTheButton) {
    startRun();

    press("High scores");

    EXPECT_FALSE(session.running());
    EXPECT_TRUE(session.showingScores());
    EXPECT_TRUE(shows("The high scores."));
}

TEST_F(MainScreen, exposesTheBoardWithItsScoreToScreenReaders) {
    EXPECT_TRUE(shows("Snake board. Score 0. Use arrow keys or W A S D to move."));

    session.start();
    eatFirstFruit();
    processEvents();

    EXPECT_TRUE(shows("Snake board. Score 10. Use arrow keys or W A S D to move."));
}
