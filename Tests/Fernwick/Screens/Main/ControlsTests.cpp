#include <QWindow>
#include <functional>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"

namespace {

enum class Means { click, returnKey };

/// Every control, worked by a real click into the window or by Tab and Return.
class Controls : public WindowTest, public ::testing::WithParamInterface<Means> {
protected:
    /// Works the control that goes by `name`, if it lets itself be worked.
    void work(const QString& name) { workIn(window, name); }

    void workIn(const QWidget& part, const QString& name) {
        if (GetParam() == Means::click) {
            const QAbstractButton* found = Screen::button(part, name);
            ASSERT_NE(found, nullptr) << name.toStdString();
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              found->mapTo(&window, found->rect().center()));
        } else if (Keyboard::tabTo(window, name)) {
            Keyboard::press(window, Qt::Key_Return);
        }
        settle();
    }

    /// Calls `check` in each state of a game, telling whether a run is live and whether a name is
    /// awaited.
    void inEveryState(const std::function<void(bool live, bool awaiting)>& check) {
        SCOPED_TRACE("fresh");
        check(false, false);
        SCOPED_TRACE("running");
        startRun();
        check(true, false);
        SCOPED_TRACE("paused");
        pauseRun();
        check(true, false);
        SCOPED_TRACE("awaiting a name");
        endRunAwaitingName();
        check(false, true);
        SCOPED_TRACE("skipped");
        skipRun();
        check(false, false);
        SCOPED_TRACE("saved");
        saveRunAs("Ada");
        check(false, false);
    }
};

INSTANTIATE_TEST_SUITE_P(By, Controls, ::testing::Values(Means::click, Means::returnKey),
                         [](const auto& means) {
                             return means.param == Means::click ? "Click" : "Return";
                         });

}  // namespace

TEST_P(Controls, openTheSheetInEveryState) {
    inEveryState([this](bool, bool) {
        work("High scores");
        EXPECT_TRUE(session.showingScores());
        session.closeScores();
        settle();
    });
}

TEST_P(Controls, switchTheSoundInEveryState) {
    inEveryState([this](bool, bool) {
        const bool before = session.sound();
        work("Toggle sound effects");
        EXPECT_NE(session.sound(), before);
    });
}

TEST_P(Controls, pauseAndResumeALiveRunOnly) {
    inEveryState([this](bool live, bool) {
        const bool before = session.running();
        work("Pause or resume");
        EXPECT_EQ(session.running() != before, live);
    });
}

TEST_P(Controls, chooseTheSpeedBetweenRunsOnly) {
    inEveryState([this](bool live, bool awaiting) {
        session.choosePace(Pace::classic);
        work("Swift");
        EXPECT_EQ(session.pace() == Pace::swift, !live && !awaiting);
        work("Gentle");
        EXPECT_EQ(session.pace() == Pace::gentle, !live && !awaiting);
    });
}

TEST_P(Controls, startTheFirstRunAndGoOnAfterAPause) {
    work("Let's grow");
    ASSERT_TRUE(session.running());
    const SnakeCore::UUID run = session.runID();
    session.pause();
    settle();

    work("Keep growing");

    EXPECT_TRUE(session.running());
    EXPECT_EQ(session.runID(), run);
}

TEST_P(Controls, saveOnlyAName) {
    endRunAwaitingName();
    session.editName(QStringLiteral("   "));
    settle();
    work("Save score");
    EXPECT_TRUE(session.awaitingName());

    session.editName(QStringLiteral("Ada"));
    settle();
    work("Save score");

    EXPECT_TRUE(session.savedRun());
}

TEST_P(Controls, skipSavingWhateverTheName) {
    for (const QString& name : {QString(), QStringLiteral("Ada")}) {
        endRunAwaitingName();
        session.editName(name);
        settle();

        work("Skip saving");

        EXPECT_FALSE(session.awaitingName());
        EXPECT_FALSE(session.savedRun());
    }
}

TEST_P(Controls, playAgainAfterASaveAndAfterASkip) {
    saveRunAs("Ada");
    work("Play again");
    EXPECT_TRUE(session.running());

    skipRun();
    work("Play again");
    EXPECT_TRUE(session.running());
}

TEST_P(Controls, switchTheSpeedOfTheSheetAndCloseIt) {
    session.openScores();
    settle();
    const auto& sheet = *window.findChild<HighScoresView*>();

    workIn(sheet, "Swift");
    EXPECT_EQ(session.scorePace(), Pace::swift);
    EXPECT_EQ(session.pace(), Pace::classic);
    workIn(sheet, "Done");

    EXPECT_FALSE(session.showingScores());
}

TEST_P(Controls, underTheSheetAreOutOfReach) {
    session.openScores();
    settle();

    work("Toggle sound effects");
    work("High scores");

    EXPECT_TRUE(session.sound());
    EXPECT_TRUE(session.showingScores());
}
