#include <QTest>
#include <QTimer>

#include "Fernwick/Window/MenuKeysTest.hpp"

namespace {

const QStringList fileItems{"New Game", "Quit"};

/// Commands given by shortcut and through the menus, in full screen and in a window.
class MenuKeys : public MenuKeysTest {
protected:
    void pressCtrl(Qt::Key key) { press(key, Qt::ControlModifier); }

    /// Moves to the item called `title` with the arrow keys. Returns false if they cannot reach
    /// it, because it is disabled.
    bool moveTo(const QString& title) {
        press(firstMenu);
        if (!fileItems.contains(title)) {
            press(Qt::Key_Right);
        }
        for (qsizetype steps = openMenu()->actions().size(); steps >= 0; --steps) {
            const QAction* active = openMenu()->activeAction();
            if (active != nullptr && active->text() == title) {
                return true;
            }
            press(Qt::Key_Down);
        }
        return false;
    }

    void choose(const QString& title) {
        ASSERT_TRUE(moveTo(title)) << title.toStdString();
        press(Qt::Key_Return);
        closeMenus();
    }

    /// Opens the menu that contains `title` with the mouse and clicks the item.
    void clickOn(const QString& title) {
        showBar();
        const qsizetype index = fileItems.contains(title) ? 0 : 1;
        clickTitle(index);
        QMenu* menu = bar().actions().at(index)->menu();
        ASSERT_EQ(openMenu(), menu);
        for (QAction* item : menu->actions()) {
            if (item->text() == title) {
                click(*menu, menu->actionGeometry(item).center());
            }
        }
        closeMenus();
    }
};

INSTANTIATE_TEST_SUITE_P(In, MenuKeys, ::testing::Bool(), menuKeysName);

}  // namespace

TEST_P(MenuKeys, ctrlNStartsARunUnlessAwaitingAName) {
    inEveryPhase([this](Session::Phase phase) {
        const SnakeCore::UUID before = session.runID();
        pressCtrl(Qt::Key_N);
        EXPECT_EQ(session.runID() == before, phase == Session::Phase::awaitingName);
        EXPECT_EQ(session.running(), phase != Session::Phase::awaitingName);
    });
}

TEST_P(MenuKeys, ctrlLOpensTheScoreSheetInEveryPhase) {
    inEveryPhase([this](Session::Phase phase) {
        pressCtrl(Qt::Key_L);
        EXPECT_TRUE(session.showingScores());
        EXPECT_FALSE(session.running());
        EXPECT_EQ(session.awaitingName(), phase == Session::Phase::awaitingName);
        press(Qt::Key_Escape);
        EXPECT_FALSE(session.showingScores());
    });
}

TEST_P(MenuKeys, ctrlPPausesAndResumesOnlyDuringARun) {
    inEveryPhase([this](Session::Phase phase) {
        pressCtrl(Qt::Key_P);
        EXPECT_EQ(session.phase(), phase == Session::Phase::running  ? Session::Phase::paused
                                   : phase == Session::Phase::paused ? Session::Phase::running
                                                                     : phase);
    });
}

TEST_P(MenuKeys, f11AndCtrlMetaFToggleFullScreenInEveryPhase) {
    inEveryPhase([this](Session::Phase phase) {
        press(Qt::Key_F11);
        waitForFullScreen(!GetParam());
        press(Qt::Key_F, Qt::ControlModifier | Qt::MetaModifier);
        waitForFullScreen(GetParam());
        EXPECT_EQ(session.phase(), phase);
    });
}

TEST_P(MenuKeys, ctrlQQuits) {
    QTimer::singleShot(0, &window, [this] { pressCtrl(Qt::Key_Q); });
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });

    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_P(MenuKeys, commandsNeitherStartNorResumeWhileTheScoreSheetIsOpen) {
    startAndPauseRun();
    const SnakeCore::UUID run = session.runID();
    pressCtrl(Qt::Key_L);
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_P, Qt::Key_L}) {
        pressCtrl(key);
    }
    choose("Resume");
    EXPECT_FALSE(moveTo("New Game"));
    press(Qt::Key_Return);
    closeMenus();
    clickOn("New Game");

    EXPECT_EQ(session.runID(), run);
    EXPECT_FALSE(session.running());
    EXPECT_TRUE(session.showingScores());
}

TEST_P(MenuKeys, unassignedKeyCombinationsDoNotReachTheGame) {
    startRun();
    const SnakeCore::UUID run = session.runID();
    for (const Qt::KeyboardModifier held :
         {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        for (const Qt::Key key : {Qt::Key_R, Qt::Key_Space, Qt::Key_Up, Qt::Key_Escape}) {
            press(key, held);
        }
    }
    fireTimer();

    EXPECT_EQ(session.runID(), run);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::right);
}

TEST_P(MenuKeys, escapeHidesTheBarInFullScreenIfThePointerHasLeftTheWindowFromTheBand) {
    QTest::mouseMove(window.windowHandle(), QPoint(window.width() / 2, 20));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(window.windowHandle(), &leave);

    press(firstMenu);
    closeMenus();
    processEvents();

    EXPECT_EQ(bar().isVisible(), !window.isFullScreen());
}

TEST_P(MenuKeys, f10OpensTheMenusAndEscapeClosesThem) {
    press(firstMenu);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().front()->text(), "New Game");
    press(Qt::Key_Right);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().front()->text(), "Toggle Full Screen");
    closeMenus();
}

TEST_P(MenuKeys, altAloneActivatesTheMenuBar) {
    press(Qt::Key_Alt);
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(bar().activeAction(), bar().actions().front());

    press(Qt::Key_Down);
    ASSERT_EQ(openTitle(), "File");
    EXPECT_EQ(openMenu()->activeAction()->text(), "New Game");
    press(Qt::Key_Right);
    EXPECT_EQ(openTitle(), "Game");
    press(Qt::Key_Left);
    EXPECT_EQ(openTitle(), "File");
    press(Qt::Key_Escape);
    EXPECT_EQ(openMenu(), nullptr);
    EXPECT_EQ(session.phase(), Session::Phase::fresh);
}

TEST_P(MenuKeys, spaceAfterAltUsesTheMenusAndStartsNoRun) {
    press(Qt::Key_Alt);
    press(Qt::Key_Space);

    EXPECT_EQ(openTitle(), "File");
    EXPECT_EQ(session.phase(), Session::Phase::fresh);
}

TEST_P(MenuKeys, arrowsAfterAltDoNotSteer) {
    startRun();
    press(Qt::Key_Alt);
    press(Qt::Key_Up);
    EXPECT_EQ(openTitle(), "File");
    const SnakeCore::Cell held = session.game().snake()[0];
    leaveMenus();
    fireTimer();

    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::right);
    EXPECT_EQ(session.game().snake()[0], (SnakeCore::Cell{held.x + 1, held.y}));
}

TEST_P(MenuKeys, returnAfterAltAndDownChoosesTheFirstItem) {
    press(Qt::Key_Alt);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(openMenu(), nullptr);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    press(Qt::Key_Up);
    fireTimer();
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_P(MenuKeys, keysPressedInAnOpenMenuDoNotReachTheGame) {
    startRun();
    const SnakeCore::UUID run = session.runID();
    press(firstMenu);
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Up, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }
    const SnakeCore::Cell held = session.game().snake()[0];
    leaveMenus();
    fireTimer();

    EXPECT_EQ(session.runID(), run);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::right);
    EXPECT_EQ(session.game().snake()[0], (SnakeCore::Cell{held.x + 1, held.y}));
}

TEST_P(MenuKeys, everyItemCanBeChosenWithTheKeyboard) {
    choose("New Game");
    EXPECT_EQ(session.phase(), Session::Phase::running);
    choose("Pause");
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    choose("Resume");
    EXPECT_EQ(session.phase(), Session::Phase::running);
    choose("Sound Effects");
    EXPECT_FALSE(session.sound());
    choose("Sound Effects");
    EXPECT_TRUE(session.sound());
    choose("Toggle Full Screen");
    waitForFullScreen(!GetParam());
    choose("High Scores");
    EXPECT_TRUE(session.showingScores());
}

TEST_P(MenuKeys, everyItemCanBeClicked) {
    clickOn("New Game");
    EXPECT_EQ(session.phase(), Session::Phase::running);
    clickOn("Pause");
    EXPECT_EQ(session.phase(), Session::Phase::paused);
    clickOn("Resume");
    EXPECT_EQ(session.phase(), Session::Phase::running);
    clickOn("Sound Effects");
    EXPECT_FALSE(session.sound());
    clickOn("Toggle Full Screen");
    waitForFullScreen(!GetParam());
    clickOn("High Scores");
    EXPECT_TRUE(session.showingScores());
}

TEST_P(MenuKeys, newGameIsDisabledWhileAwaitingAName) {
    enterPhase(Session::Phase::awaitingName);
    const SnakeCore::UUID run = session.runID();

    EXPECT_FALSE(moveTo("New Game"));
    press(Qt::Key_Return);
    closeMenus();
    clickOn("New Game");

    EXPECT_EQ(session.runID(), run);
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
}
