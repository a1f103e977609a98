#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "Fernwick/Window/WindowTest.hpp"

namespace {

class Menus : public WindowTest {
protected:
    [[nodiscard]] QMenu* menu(const QString& title) const {
        for (const QAction* action : window.findChild<QMenuBar*>()->actions()) {
            if (action->text() == title) {
                return action->menu();
            }
        }
        return nullptr;
    }

    [[nodiscard]] QStringList titles(const QString& title) const {
        QStringList found;
        for (const QAction* action : menu(title)->actions()) {
            found.append(action->isSeparator() ? QStringLiteral("—") : action->text());
        }
        return found;
    }

    [[nodiscard]] QAction* item(const QString& title) const {
        for (const QString& name : {QStringLiteral("File"), QStringLiteral("Game")}) {
            for (QAction* action : menu(name)->actions()) {
                if (action->text() == title) {
                    return action;
                }
            }
        }
        return nullptr;
    }

    void choose(const QString& title) {
        ASSERT_NE(item(title), nullptr) << title.toStdString();
        item(title)->trigger();
        settle();
    }

    [[nodiscard]] bool canChoose(const QString& title) const {
        return item(title) != nullptr && item(title)->isEnabled();
    }

    /// What can be chosen in every state but for "New Game" and the title of the pause item.
    void expectTheUnconditionalItems() const {
        EXPECT_TRUE(canChoose("Toggle Full Screen"));
        EXPECT_TRUE(canChoose("High Scores"));
        EXPECT_TRUE(canChoose("Sound Effects"));
        EXPECT_TRUE(canChoose("Quit"));
    }
};

}  // namespace

TEST_F(Menus, holdTheirItemsInOrder) {
    EXPECT_EQ(titles("File"), QStringList({"New Game", "—", "Quit"}));
    EXPECT_EQ(titles("Game"),
              QStringList({"Toggle Full Screen", "—", "High Scores", "Resume", "Sound Effects"}));
}

TEST_F(Menus, haveTheirShortcuts) {
    EXPECT_EQ(item("New Game")->shortcut(), QKeySequence("Ctrl+N"));
    EXPECT_EQ(item("Quit")->shortcut(), QKeySequence("Ctrl+Q"));
    EXPECT_EQ(item("Toggle Full Screen")->shortcuts(),
              QList<QKeySequence>({QKeySequence("Ctrl+Meta+F"), QKeySequence("F11")}));
    EXPECT_EQ(item("High Scores")->shortcut(), QKeySequence("Ctrl+L"));
    EXPECT_EQ(item("Resume")->shortcut(), QKeySequence("Ctrl+P"));
    EXPECT_TRUE(item("Sound Effects")->shortcuts().isEmpty());
}

TEST_F(Menus, ofAFreshGame) {
    EXPECT_TRUE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Resume"));
    EXPECT_EQ(item("Pause"), nullptr);
    expectTheUnconditionalItems();
}

TEST_F(Menus, ofARunningGame) {
    startRun();

    EXPECT_TRUE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Pause"));
    EXPECT_EQ(item("Resume"), nullptr);
    expectTheUnconditionalItems();
}

TEST_F(Menus, ofAPausedGame) {
    pauseRun();

    EXPECT_TRUE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Resume"));
    expectTheUnconditionalItems();
}

TEST_F(Menus, whileANameIsAwaited) {
    endRunAwaitingName();

    EXPECT_FALSE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Resume"));
    expectTheUnconditionalItems();
}

TEST_F(Menus, afterASavedRun) {
    saveRunAs("Ada");

    EXPECT_TRUE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Resume"));
    expectTheUnconditionalItems();
}

TEST_F(Menus, afterASkippedRun) {
    skipRun();

    EXPECT_TRUE(canChoose("New Game"));
    EXPECT_TRUE(canChoose("Resume"));
    expectTheUnconditionalItems();
}

TEST_F(Menus, whileTheSheetIsUp) {
    session.openScores();
    settle();
    EXPECT_FALSE(canChoose("New Game"));
    expectTheUnconditionalItems();

    session.closeScores();
    settle();
    EXPECT_TRUE(canChoose("New Game"));
}

TEST_F(Menus, startANewGame) {
    startRun();
    fireTimer();
    const SnakeCore::UUID before = session.runID();

    choose("New Game");

    EXPECT_TRUE(session.running());
    EXPECT_NE(session.runID(), before);
}

TEST_F(Menus, pauseAndResume) {
    startRun();

    choose("Pause");
    EXPECT_FALSE(session.running());
    choose("Resume");
    EXPECT_TRUE(session.running());
}

TEST_F(Menus, resumeNothingBeforeTheFirstRun) {
    choose("Resume");

    EXPECT_FALSE(session.started());
}

TEST_F(Menus, openTheSheet) {
    choose("High Scores");

    EXPECT_TRUE(session.showingScores());
}

TEST_F(Menus, openTheSheetWhileANameIsAwaited) {
    endRunAwaitingName();

    choose("High Scores");

    EXPECT_TRUE(session.showingScores());
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(Menus, switchTheSoundOffAndOn) {
    EXPECT_TRUE(item("Sound Effects")->isCheckable());
    EXPECT_TRUE(item("Sound Effects")->isChecked());

    choose("Sound Effects");
    EXPECT_FALSE(session.sound());
    EXPECT_EQ(onDisk().boolean("sound"), false);

    choose("Sound Effects");
    EXPECT_TRUE(session.sound());
    EXPECT_EQ(onDisk().boolean("sound"), true);
}

TEST_F(Menus, followTheSoundSwitchedElsewhere) {
    session.setSound(false);
    settle();

    EXPECT_FALSE(item("Sound Effects")->isChecked());
}

TEST_F(Menus, toggleFullScreen) {
    ASSERT_TRUE(window.isFullScreen());

    choose("Toggle Full Screen");
    EXPECT_FALSE(window.isFullScreen());
    choose("Toggle Full Screen");
    EXPECT_TRUE(window.isFullScreen());
}
