#include <vector>

#include "Fernwick/Window/MenuKeysTest.hpp"
#include "Window/TitleBand.hpp"

namespace {

/// A run is held while a menu is open or the menu bar has the focus.
class MenusInUse : public MenuKeysTest {
protected:
    void SetUp() override {
        connection_ = QObject::connect(&child<TitleBand>(), &TitleBand::menuInUseChanged, &session,
                                       [this](bool inUse) { changes.push_back(inUse); });
    }
    void TearDown() override { QObject::disconnect(connection_); }

    void expectHeld(bool held) const {
        EXPECT_EQ(session.held(), held);
        EXPECT_EQ(session.phase(), Session::Phase::running);
        EXPECT_EQ(timerIsActive(), !held);
    }

    std::vector<bool> changes;

private:
    QMetaObject::Connection connection_;
};

/// The same, in a window.
class MenuBarInUse : public MenusInUse {
protected:
    void activateBar() {
        press(Qt::Key_Alt);
        ASSERT_TRUE(bar().hasFocus());
    }
};

INSTANTIATE_TEST_SUITE_P(In, MenusInUse, ::testing::Bool(), menuKeysName);
INSTANTIATE_TEST_SUITE_P(In, MenuBarInUse, ::testing::Values(false), menuKeysName);

}  // namespace

TEST_P(MenusInUse, holdTheRunUntilTheyAreLeft) {
    startRun();
    press(firstMenu);
    expectHeld(true);
    const SnakeCore::Cell held = session.game().snake()[0];

    leaveMenus();

    expectHeld(false);
    fireTimer();
    EXPECT_EQ(session.game().snake()[0], (SnakeCore::Cell{held.x + 1, held.y}));
}

TEST_P(MenusInUse, holdTheRunWithoutABreakWhileMenusAreSwitched) {
    startRun();
    press(firstMenu);
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    EXPECT_EQ(openTitle(), "File");
    expectHeld(true);
    leaveMenus();

    EXPECT_EQ(changes, (std::vector{true, false}));
    expectHeld(false);
}

TEST_P(MenusInUse, holdTheRunWhenOpenedWithTheMouse) {
    startRun();
    showBar();
    clickTitle(1);
    ASSERT_EQ(openTitle(), "Game");
    expectHeld(true);

    clickTitle(1);
    EXPECT_EQ(openMenu(), nullptr);

    expectHeld(false);
    EXPECT_EQ(changes, (std::vector{true, false}));
}

TEST_P(MenusInUse, giveTheFocusBackToTheControlThatHadIt) {
    for (const Qt::Key key : {firstMenu, Qt::Key_Alt}) {
        button("Swift")->setFocus(Qt::TabFocusReason);
        press(key);
        press(Qt::Key_Down);
        EXPECT_EQ(openTitle(), "File");

        leaveMenus();

        EXPECT_EQ(QApplication::focusWidget(), button("Swift"));
        EXPECT_FALSE(session.held());
    }
}

TEST_P(MenusInUse, startARunThatAdvancesOnceTheyAreClosed) {
    press(firstMenu);
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    expectHeld(false);
}

TEST_P(MenusInUse, endWithAKeyInTheWindowIfADesktopPanelShowsThem) {
    startRun();
    Q_EMIT bar().actions().front()->menu()->aboutToShow();
    expectHeld(true);

    press(Qt::Key_Up);

    expectHeld(false);
    fireTimer();
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
}

TEST_P(MenusInUse, endWithAClickInTheWindowIfADesktopPanelShowsThem) {
    startRun();
    Q_EMIT bar().actions().front()->menu()->aboutToShow();

    click(window, QPoint(window.width() / 2, window.height() - 2));

    expectHeld(false);
}

TEST_P(MenusInUse, keepTheBarShownWhenTheWindowStateIsReportedAgain) {
    press(firstMenu);

    // GNOME's Wayland session deactivates and activates the window when a menu opens.
    QWindowStateChangeEvent event(window.windowState());
    QCoreApplication::sendEvent(&window, &event);

    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(openTitle(), "File");
}

TEST_P(MenuBarInUse, holdsTheRunUntilEscape) {
    startRun();
    activateBar();
    expectHeld(true);

    press(Qt::Key_Escape);

    expectHeld(false);
    EXPECT_EQ(QApplication::focusWidget(), &window);
}

TEST_P(MenuBarInUse, holdsTheRunUntilAClickOutsideOfItsTitles) {
    startRun();
    activateBar();
    click(bar(), bar().actionGeometry(bar().actions().at(1)).center());
    expectHeld(true);
    leaveMenus();
    activateBar();

    click(window, QPoint(window.width() / 2, window.height() - 10));

    expectHeld(false);
    EXPECT_EQ(QApplication::focusWidget(), &window);
}

TEST_P(MenuBarInUse, doesNotKeepTheFocusAfterAnotherWindowHadIt) {
    startRun();
    activateBar();
    {
        QWidget other;
        other.show();
        other.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    processEvents();

    expectHeld(false);
    EXPECT_EQ(QApplication::focusWidget(), &window);
    press(Qt::Key_Space);
    EXPECT_EQ(session.phase(), Session::Phase::paused);
}

TEST_P(MenuBarInUse, doesNotGetTheFocusBackFromTheScoreSheet) {
    button("Swift")->setFocus(Qt::TabFocusReason);
    activateBar();
    press(Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(session.showingScores());
    EXPECT_FALSE(session.held());

    press(Qt::Key_Escape);

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(session.held());
    EXPECT_EQ(QApplication::focusWidget(), button("Swift"));
}

TEST_P(MenuBarInUse, givesTheFocusBackWhenFullScreenHidesIt) {
    startRun();
    activateBar();

    press(Qt::Key_F11);
    waitForFullScreen(true);

    expectHeld(false);
    EXPECT_EQ(QApplication::focusWidget(), &window);
}
