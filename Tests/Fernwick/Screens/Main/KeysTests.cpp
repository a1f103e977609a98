#include <algorithm>
#include <cctype>
#include <functional>
#include <vector>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

const std::vector<Qt::Key> gameKeys{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                                    Qt::Key_W,     Qt::Key_A,      Qt::Key_S,    Qt::Key_D,
                                    Qt::Key_Space, Qt::Key_Escape, Qt::Key_R};

/// What the keys of the game do while the keyboard is on one of the window's controls.
class Keys : public WindowTest {
protected:
    /// Calls `check` in `state` with the keyboard on each control that Tab reaches, one by one.
    void onEveryControl(Session::Phase state, const std::function<void()>& check) {
        arriveAt(state);
        leaveFullScreen();
        const QStringList names = Keyboard::namesOf(Keyboard::tabStops(window));
        ASSERT_GE(names.size(), 5);
        for (const QString& name : names) {
            SCOPED_TRACE(name.toStdString());
            arriveAt(state);
            ASSERT_TRUE(Keyboard::tabTo(window, name));
            check();
        }
    }

    void press(Qt::Key key) { Keyboard::press(window, key); }

    /// Expects that no control has taken a press for its own.
    void expectNoControlPressed() const {
        EXPECT_TRUE(session.sound());
        EXPECT_FALSE(session.showingScores());
        EXPECT_EQ(session.pace(), Pace::classic);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowState(), Qt::WindowNoState);
    }
};

/// The same before the first run, which each session has only once.
class KeysBeforeTheFirstRun : public Keys, public ::testing::WithParamInterface<const char*> {
protected:
    KeysBeforeTheFirstRun() {
        leaveFullScreen();
        EXPECT_TRUE(Keyboard::tabTo(window, GetParam()));
    }
};

INSTANTIATE_TEST_SUITE_P(On, KeysBeforeTheFirstRun,
                         ::testing::Values("Minimise", "Maximise", "Close", "Gentle", "Classic",
                                           "Swift", "Let's grow", "High scores",
                                           "Toggle sound effects"),
                         [](const auto& control) {
                             std::string name = control.param;
                             std::erase_if(name,
                                           [](char letter) { return std::isalpha(letter) == 0; });
                             return name;
                         });

}  // namespace

TEST_P(KeysBeforeTheFirstRun, spaceStartsIt) {
    press(Qt::Key_Space);

    EXPECT_EQ(session.phase(), Session::Phase::running);
    expectNoControlPressed();
}

TEST_P(KeysBeforeTheFirstRun, rStartsIt) {
    press(Qt::Key_R);

    EXPECT_EQ(session.phase(), Session::Phase::running);
    expectNoControlPressed();
}

TEST_P(KeysBeforeTheFirstRun, theOthersDoNothing) {
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_W,
                              Qt::Key_A, Qt::Key_S, Qt::Key_D, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_EQ(Screen::nameOf(QApplication::focusWidget()), GetParam());
    expectNoControlPressed();
}

TEST_F(Keys, spaceTakesABreathOnEveryControl) {
    onEveryControl(Session::Phase::running, [this] {
        press(Qt::Key_Space);

        EXPECT_EQ(session.phase(), Session::Phase::paused);
        expectNoControlPressed();
    });
}

TEST_F(Keys, spaceGoesOnWithTheSameRunOnEveryControl) {
    onEveryControl(Session::Phase::paused, [this] {
        const SnakeCore::UUID run = session.runID();
        press(Qt::Key_Space);

        EXPECT_EQ(session.phase(), Session::Phase::running);
        EXPECT_EQ(session.runID(), run);
        expectNoControlPressed();
    });
}

TEST_F(Keys, spacePlaysAgainOnEveryControl) {
    for (const Session::Phase settled : {Session::Phase::saved, Session::Phase::skipped}) {
        onEveryControl(settled, [this] {
            const SnakeCore::UUID run = session.runID();
            press(Qt::Key_Space);

            EXPECT_EQ(session.phase(), Session::Phase::running);
            EXPECT_NE(session.runID(), run);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, rBeginsAnewOnEveryControl) {
    for (const Session::Phase state : {Session::Phase::running, Session::Phase::paused,
                                       Session::Phase::saved, Session::Phase::skipped}) {
        onEveryControl(state, [this] {
            const SnakeCore::UUID run = session.runID();
            press(Qt::Key_R);

            EXPECT_EQ(session.phase(), Session::Phase::running);
            EXPECT_NE(session.runID(), run);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, escapeOnlyPausesOnEveryControl) {
    onEveryControl(Session::Phase::running, [this] {
        press(Qt::Key_Escape);
        EXPECT_EQ(session.phase(), Session::Phase::paused);

        press(Qt::Key_Escape);
        EXPECT_EQ(session.phase(), Session::Phase::paused);
        expectNoControlPressed();
    });
}

TEST_F(Keys, arrowsTurnTheSnakeAndMoveNoFocus) {
    onEveryControl(Session::Phase::running, [this] {
        const QWidget* const focus = QApplication::focusWidget();
        press(Qt::Key_Up);
        fireTimer();
        EXPECT_EQ(session.game().direction(), SnakeCore::Direction::up);
        press(Qt::Key_Left);
        fireTimer();
        EXPECT_EQ(session.game().direction(), SnakeCore::Direction::left);

        EXPECT_EQ(QApplication::focusWidget(), focus);
        expectNoControlPressed();
    });
}

TEST_F(Keys, arrowsDoNothingWhereNoSnakeMoves) {
    for (const Session::Phase state : {Session::Phase::paused, Session::Phase::skipped}) {
        onEveryControl(state, [this, state] {
            const QWidget* const focus = QApplication::focusWidget();
            const SnakeCore::Game before = session.game();
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,
                                      Qt::Key_W, Qt::Key_A, Qt::Key_S, Qt::Key_D}) {
                press(key);
            }

            EXPECT_EQ(session.phase(), state);
            EXPECT_EQ(session.game(), before);
            EXPECT_EQ(QApplication::focusWidget(), focus);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, returnDoesNothingWhileNoControlHasTheFocus) {
    for (const Session::Phase state : {Session::Phase::running, Session::Phase::paused,
                                       Session::Phase::saved, Session::Phase::skipped}) {
        arriveAt(state);
        window.setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            press(key);
        }
        EXPECT_EQ(session.phase(), state);
    }
}

TEST_F(Keys, belongToTheNameFieldWhileANameIsAwaited) {
    arriveAt(Session::Phase::awaitingName);
    for (const Qt::Key key : gameKeys) {
        press(key);
    }

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_EQ(session.playerName(), "wasd r");
    EXPECT_TRUE(window.findChild<NameField*>()->hasFocus());
}

TEST_F(Keys, startNoRunWhileANameIsAwaitedWhateverHasTheFocus) {
    onEveryControl(Session::Phase::awaitingName, [this] {
        const SnakeCore::UUID run = session.runID();
        for (const Qt::Key key : {Qt::Key_R, Qt::Key_Escape, Qt::Key_Up, Qt::Key_A}) {
            press(key);
        }
        EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
        EXPECT_EQ(session.runID(), run);
        session.editName(QString());
        settle();
    });
}

TEST_F(Keys, spacePressesTheButtonsOfTheForm) {
    arriveAt(Session::Phase::awaitingName);
    session.editName(QStringLiteral("Ada"));
    settle();
    ASSERT_TRUE(Keyboard::tabTo(window, "Save score"));
    press(Qt::Key_Space);
    EXPECT_EQ(session.phase(), Session::Phase::saved);

    arriveAt(Session::Phase::running);
    arriveAt(Session::Phase::awaitingName);
    ASSERT_TRUE(Keyboard::tabTo(window, "Skip saving"));
    press(Qt::Key_Space);
    EXPECT_EQ(session.phase(), Session::Phase::skipped);
}
