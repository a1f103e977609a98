#include "Fernwick/Window/ActivationTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"

namespace {

/// The controls of the main screen, activated by mouse and by keyboard.
class Controls : public ActivationTest {};

INSTANTIATE_TEST_SUITE_P(By, Controls, allActivations, activationName);

}  // namespace

TEST_P(Controls, openTheScoreSheetInEveryPhase) {
    inEveryPhase([this](Session::Phase) {
        activate("High scores");
        EXPECT_TRUE(session.showingScores());
        session.closeScores();
        processEvents();
    });
}

TEST_P(Controls, toggleTheSoundInEveryPhase) {
    inEveryPhase([this](Session::Phase) {
        const bool before = session.sound();
        activate("Toggle sound effects");
        EXPECT_NE(session.sound(), before);
    });
}

TEST_P(Controls, pauseAndResumeOnlyDuringARun) {
    inEveryPhase([this](Session::Phase phase) {
        const bool before = session.running();
        activate("Pause or resume");
        EXPECT_EQ(session.running() != before, inRun(phase));
    });
}

TEST_P(Controls, chooseTheSpeedOnlyBetweenRuns) {
    inEveryPhase([this](Session::Phase phase) {
        session.choosePace(Pace::classic);
        activate("Swift");
        EXPECT_EQ(session.pace() == Pace::swift, betweenRuns(phase));
        activate("Gentle");
        EXPECT_EQ(session.pace() == Pace::gentle, betweenRuns(phase));
    });
}

TEST_P(Controls, startTheFirstRunAndResumeAPausedOne) {
    activate("Let's grow");
    ASSERT_TRUE(session.running());
    const SnakeCore::UUID run = session.runID();
    session.pause();
    processEvents();

    activate("Keep growing");

    EXPECT_TRUE(session.running());
    EXPECT_EQ(session.runID(), run);
}

TEST_P(Controls, saveANameButNotABlankOne) {
    playToNameEntry();
    session.editName(QStringLiteral("   "));
    processEvents();
    activate("Save score");
    EXPECT_TRUE(session.awaitingName());

    session.editName(QStringLiteral("Ada"));
    processEvents();
    activate("Save score");

    EXPECT_TRUE(session.savedRun());
}

TEST_P(Controls, skipSavingWithAndWithoutAName) {
    for (const QString& name : {QString(), QStringLiteral("Ada")}) {
        playToNameEntry();
        session.editName(name);
        processEvents();

        activate("Skip saving");

        EXPECT_FALSE(session.awaitingName());
        EXPECT_FALSE(session.savedRun());
    }
}

TEST_P(Controls, playAgainAfterSavingAndAfterSkipping) {
    playAndSaveAs("Ada");
    activate("Play again");
    EXPECT_TRUE(session.running());

    playAndSkip();
    activate("Play again");
    EXPECT_TRUE(session.running());
}

TEST_P(Controls, changeTheSpeedOfTheScoreSheetAndCloseIt) {
    openScores();
    const auto& sheet = child<HighScoresView>();

    activate(sheet, "Swift");
    EXPECT_EQ(session.scorePace(), Pace::swift);
    EXPECT_EQ(session.pace(), Pace::classic);
    activate(sheet, "Done");

    EXPECT_FALSE(session.showingScores());
}

TEST_P(Controls, doNothingBehindTheScoreSheet) {
    openScores();

    activate("Toggle sound effects");
    activate("High scores");

    EXPECT_TRUE(session.sound());
    EXPECT_TRUE(session.showingScores());
}
