#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"

namespace {

constexpr Qt::Key firstMenu = Qt::Key_F10;
const QStringList fileItems{"New Game", "Quit"};

/// The commands by their shortcuts and through the menus themselves, in and out of full screen.
class MenuKeys : public WindowTest, public ::testing::WithParamInterface<bool> {
protected:
    MenuKeys() {
        if (!GetParam()) {
            leaveFullScreen();
        }
    }

    void press(Qt::Key key, Qt::KeyboardModifiers held = {}) { Keyboard::press(window, key, held); }

    void command(Qt::Key key) { press(key, Qt::ControlModifier); }

    void inEveryState(const std::function<void(Session::Phase)>& check) {
        for (const Session::Phase state : everyState) {
            SCOPED_TRACE(state);
            arriveAt(state);
            check(state);
        }
    }

    [[nodiscard]] static QMenu* openMenu() {
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    /// Walks through the menus to the item that goes by `title`; tells whether the keys lead there.
    bool walkTo(const QString& title) {
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
        ASSERT_TRUE(walkTo(title)) << title.toStdString();
        press(Qt::Key_Return);
        closeMenus();
    }

    void closeMenus() {
        for (int menus = 2; openMenu() != nullptr && menus > 0; --menus) {
            press(Qt::Key_Escape);
        }
        ASSERT_EQ(openMenu(), nullptr);
    }

    void click(const QWidget& place, const QPoint& position) {
        QTest::mouseClick(place.window()->windowHandle(), Qt::LeftButton, {},
                          place.mapTo(place.window(), position));
        settle();
    }

    /// Opens the menu that holds `title` with the mouse and clicks on the item.
    void clickOn(const QString& title) {
        // In full screen the bar comes when the pointer touches the top edge.
        QTest::mouseMove(window.windowHandle(), QPoint(window.width() / 2, 0));
        settle();
        auto& bar = *window.findChild<QMenuBar*>();
        ASSERT_TRUE(bar.isVisible());
        QAction* head = bar.actions().at(fileItems.contains(title) ? 0 : 1);
        click(bar, bar.actionGeometry(head).center());
        ASSERT_EQ(openMenu(), head->menu());
        for (QAction* item : head->menu()->actions()) {
            if (item->text() == title) {
                click(*head->menu(), head->menu()->actionGeometry(item).center());
            }
        }
        closeMenus();
    }
};

INSTANTIATE_TEST_SUITE_P(In, MenuKeys, ::testing::Bool(), [](const auto& fullScreen) {
    return fullScreen.param ? "FullScreen" : "AWindow";
});

}  // namespace

TEST_P(MenuKeys, controlNStartsARunUnlessANameIsAwaited) {
    inEveryState([this](Session::Phase state) {
        const SnakeCore::UUID before = session.runID();
        command(Qt::Key_N);
        EXPECT_EQ(session.runID() == before, state == Session::Phase::awaitingName);
        EXPECT_EQ(session.running(), state != Session::Phase::awaitingName);
    });
}

TEST_P(MenuKeys, controlLOpensTheSheetInEveryState) {
    inEveryState([this](Session::Phase state) {
        command(Qt::Key_L);
        EXPECT_TRUE(session.showingScores());
        EXPECT_FALSE(session.running());
        EXPECT_EQ(session.awaitingName(), state == Session::Phase::awaitingName);
        press(Qt::Key_Escape);
        EXPECT_FALSE(session.showingScores());
    });
}

TEST_P(MenuKeys, controlPPausesAndResumesALiveRunOnly) {
    inEveryState([this](Session::Phase state) {
        command(Qt::Key_P);
        EXPECT_EQ(session.phase(), state == Session::Phase::running  ? Session::Phase::paused
                                   : state == Session::Phase::paused ? Session::Phase::running
                                                                     : state);
    });
}

TEST_P(MenuKeys, f11AndControlMetaFToggleFullScreenInEveryState) {
    inEveryState([this](Session::Phase state) {
        press(Qt::Key_F11);
        waitForFullScreen(!GetParam());
        press(Qt::Key_F, Qt::ControlModifier | Qt::MetaModifier);
        waitForFullScreen(GetParam());
        EXPECT_EQ(session.phase(), state);
    });
}

TEST_P(MenuKeys, controlQEndsTheProgram) {
    QTimer::singleShot(0, &window, [this] { command(Qt::Key_Q); });
    QTimer::singleShot(5000, &window, [] { QCoreApplication::exit(1); });

    EXPECT_EQ(QApplication::exec(), 0);
}

TEST_P(MenuKeys, underTheSheetStartAndResumeNothing) {
    pauseRun();
    const SnakeCore::UUID run = session.runID();
    command(Qt::Key_L);
    for (const Qt::Key key : {Qt::Key_N, Qt::Key_P, Qt::Key_L}) {
        command(key);
    }
    choose("Resume");
    EXPECT_FALSE(walkTo("New Game"));
    press(Qt::Key_Return);
    closeMenus();
    clickOn("New Game");

    EXPECT_EQ(session.runID(), run);
    EXPECT_FALSE(session.running());
    EXPECT_TRUE(session.showingScores());
}

TEST_P(MenuKeys, commandsThatAreNoneNeverReachTheGame) {
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

TEST_P(MenuKeys, theMenusOpenByF10AndCloseByEscape) {
    press(firstMenu);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().front()->text(), "New Game");
    press(Qt::Key_Right);
    ASSERT_NE(openMenu(), nullptr);
    EXPECT_EQ(openMenu()->actions().front()->text(), "Toggle Full Screen");
    closeMenus();
}

TEST_P(MenuKeys, altAloneGoesToTheBar) {
    press(Qt::Key_Alt);

    const auto& bar = *window.findChild<QMenuBar*>();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.activeAction(), bar.actions().front());
    closeMenus();
}

TEST_P(MenuKeys, anOpenMenuKeepsTheKeysFromTheGame) {
    startRun();
    const SnakeCore::UUID run = session.runID();
    press(firstMenu);
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Up, Qt::Key_R, Qt::Key_Escape}) {
        press(key);
    }
    closeMenus();
    fireTimer();

    EXPECT_EQ(session.runID(), run);
    EXPECT_EQ(session.phase(), Session::Phase::running);
    EXPECT_EQ(session.game().direction(), SnakeCore::Direction::right);
}

TEST_P(MenuKeys, everyItemIsChosenByTheKeyboard) {
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

TEST_P(MenuKeys, everyItemIsChosenByAClick) {
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

TEST_P(MenuKeys, newGameIsRefusedInTheMenuWhileANameIsAwaited) {
    arriveAt(Session::Phase::awaitingName);
    const SnakeCore::UUID run = session.runID();

    EXPECT_FALSE(walkTo("New Game"));
    press(Qt::Key_Return);
    closeMenus();
    clickOn("New Game");

    EXPECT_EQ(session.runID(), run);
    EXPECT_EQ(session.phase(), Session::Phase::awaitingName);
}
