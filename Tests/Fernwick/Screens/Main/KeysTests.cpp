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

/// The keys of the game while a control of the window has the focus.
class Keys : public WindowTest {
protected:
    /// Calls `check` in `phase` for every control that Tab reaches, with the focus on it.
    void onEveryControl(Session::Phase phase, const std::function<void()>& check) {
        enterPhase(phase);
        leaveFullScreen();
        const QStringList names = Keyboard::namesOf(Keyboard::tabStops(window));
        ASSERT_GE(names.size(), 5);
        for (const QString& name : names) {
            SCOPED_TRACE(name.toStdString());
            enterPhase(phase);
            ASSERT_TRUE(Keyboard::tabTo(window, name));
            check();
        }
    }

    void press(Qt::Key key) { Keyboard::press(window, key); }

    /// Expects that no control has handled a key.
    void expectNoControlPressed() const {
        EXPECT_TRUE(session.sound());
        EXPECT_FALSE(session.showingScores());
        EXPECT_EQ(session.pace(), Pace::classic);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(window.windowState(), Qt::WindowNoState);
    }
};

/// A session cannot return to the phase before the first run, so each test has one control.
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

TEST_P(KeysBeforeTheFirstRun, spaceStartsARun) {
    press(Qt::Key_Space);

    EXPECT_EQ(session.phase(), Session::Phase::running);
    expectNoControlPressed();
}

TEST_P(KeysBeforeTheFirstRun, rStartsARun) {
    press(Qt::Key_R);

    EXPECT_EQ(session.phase(), Session::Phase::running);
    expectNoControlPressed();
}

TEST_P(KeysBeforeTheFirstRun, directionsAndEscapeDoNothing) {
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_W,
                              Qt::Key_A, Qt::Key_S, Qt::Key_D, Qt::Key_Escape}) {
        press(key);
    }

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_EQ(Screen::nameOf(QApplication::focusWidget()), GetParam());
    expectNoControlPressed();
}

TEST_P(KeysBeforeTheFirstRun, arrowsOfTheKeypadDoNothing) {
    for (const auto& [key, scanCode] :
         {std::pair{Qt::Key_Up, 80}, {Qt::Key_Left, 83}, {Qt::Key_Right, 85}, {Qt::Key_Down, 88}}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::KeypadModifier, static_cast<quint32>(scanCode),
                        0, 0);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    }

    EXPECT_EQ(session.phase(), Session::Phase::fresh);
    EXPECT_EQ(Screen::nameOf(QApplication::focusWidget()), GetParam());
    expectNoControlPressed();
}

TEST_F(Keys, spacePausesWhateverHasTheFocus) {
    onEveryControl(Session::Phase::running, [this] {
        press(Qt::Key_Space);

        EXPECT_EQ(session.phase(), Session::Phase::paused);
        expectNoControlPressed();
    });
}

TEST_F(Keys, spaceResumesTheSameRunWhateverHasTheFocus) {
    onEveryControl(Session::Phase::paused, [this] {
        const SnakeCore::UUID run = session.runID();
        press(Qt::Key_Space);

        EXPECT_EQ(session.phase(), Session::Phase::running);
        EXPECT_EQ(session.runID(), run);
        expectNoControlPressed();
    });
}

TEST_F(Keys, spaceStartsANewRunAfterTheEndWhateverHasTheFocus) {
    for (const Session::Phase ended : {Session::Phase::saved, Session::Phase::skipped}) {
        onEveryControl(ended, [this] {
            const SnakeCore::UUID run = session.runID();
            press(Qt::Key_Space);

            EXPECT_EQ(session.phase(), Session::Phase::running);
            EXPECT_NE(session.runID(), run);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, rStartsANewRunWhateverHasTheFocus) {
    for (const Session::Phase phase : {Session::Phase::running, Session::Phase::paused,
                                       Session::Phase::saved, Session::Phase::skipped}) {
        onEveryControl(phase, [this] {
            const SnakeCore::UUID run = session.runID();
            press(Qt::Key_R);

            EXPECT_EQ(session.phase(), Session::Phase::running);
            EXPECT_NE(session.runID(), run);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, escapePausesAndNeverResumesWhateverHasTheFocus) {
    onEveryControl(Session::Phase::running, [this] {
        press(Qt::Key_Escape);
        EXPECT_EQ(session.phase(), Session::Phase::paused);

        press(Qt::Key_Escape);
        EXPECT_EQ(session.phase(), Session::Phase::paused);
        expectNoControlPressed();
    });
}

TEST_F(Keys, arrowsTurnTheSnakeWithoutMovingTheFocus) {
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

TEST_F(Keys, directionsDoNothingWhenNoRunIsRunning) {
    for (const Session::Phase phase : {Session::Phase::paused, Session::Phase::skipped}) {
        onEveryControl(phase, [this, phase] {
            const QWidget* const focus = QApplication::focusWidget();
            const SnakeCore::Game before = session.game();
            for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right,
                                      Qt::Key_W, Qt::Key_A, Qt::Key_S, Qt::Key_D}) {
                press(key);
            }

            EXPECT_EQ(session.phase(), phase);
            EXPECT_EQ(session.game(), before);
            EXPECT_EQ(QApplication::focusWidget(), focus);
            expectNoControlPressed();
        });
    }
}

TEST_F(Keys, returnDoesNothingWithoutAFocusedControl) {
    for (const Session::Phase phase : {Session::Phase::running, Session::Phase::paused,
                                       Session::Phase::saved, Session::Phase::skipped}) {
        enterPhase(phase);
        window.setFocus();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            press(key);
        }
        EXPECT_EQ(session.phase(), phase);
    }
}

TEST_F(Keys, goToTheNameFieldWhileANameIsAwaited) {
    enterPhase(Session::Phase::awaitingName);
    for (const Qt::Key key : gameKeys) {
        press(key);
    }

    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
    EXPECT_EQ(session.playerName(), "wasd r");
    EXPECT_TRUE(child<NameField>().hasFocus());
}

TEST_F(Keys, doNotStartARunWhileANameIsAwaitedWhateverHasTheFocus) {
    onEveryControl(Session::Phase::awaitingName, [this] {
        const SnakeCore::UUID run = session.runID();
        for (const Qt::Key key : {Qt::Key_R, Qt::Key_Escape, Qt::Key_Up, Qt::Key_A}) {
            press(key);
        }
        EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
        EXPECT_EQ(session.runID(), run);
        session.editName(QString());
        processEvents();
    });
}

TEST_F(Keys, spacePressesTheFocusedButtonOfTheNameForm) {
    enterPhase(Session::Phase::awaitingName);
    session.editName(QStringLiteral("Ada"));
    processEvents();
    ASSERT_TRUE(Keyboard::tabTo(window, "Save score"));
    press(Qt::Key_Space);
    EXPECT_EQ(session.phase(), Session::Phase::saved);

    enterPhase(Session::Phase::running);
    enterPhase(Session::Phase::awaitingName);
    ASSERT_TRUE(Keyboard::tabTo(window, "Skip saving"));
    press(Qt::Key_Space);
    EXPECT_EQ(session.phase(), Session::Phase::skipped);
}
