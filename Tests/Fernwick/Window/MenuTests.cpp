#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "Fernwick/Window/WindowTest.hpp"

namespace {

class Menus : public WindowTest {
protected:
    [[nodiscard]] QMenu* menu(const QString& title) const {
        for (const QAction* action : child<QMenuBar>().actions()) {
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
        for (const QString& name :
             {QStringLiteral("File"), QStringLiteral("Game"), QStringLiteral("Help")}) {
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
        processEvents();
    }

    [[nodiscard]] bool canChoose(const QString& title) const {
        return item(title) != nullptr && item(title)->isEnabled();
    }

    /// The items that are always enabled, except for "Pause" or "Resume", whose title changes.
    void expectUnconditionalItemsEnabled() const {
        EXPECT_TRUE(canChoose("Toggle Full Screen"));
        EXPECT_TRUE(canChoose("High Scores"));
        EXPECT_TRUE(canChoose("Sound Effects"));
        EXPECT_TRUE(canChoose("Quit"));
        EXPECT_TRUE(canChoose("Keys"));
        EXPECT_TRUE(canChoose("About Fernwick"));
    }
};

}  // namespace

TEST_F(Menus, listTheirItemsInOrder) {
    EXPECT_EQ(titles("File"), QStringList({"New Game", "—", "Quit"}));
    EXPECT_EQ(titles("Game"),
              QStringList({"Toggle Full Screen", "—", "High Scores", "Resume", "Sound Effects"}));
    EXPECT_EQ(titles("Help"), QStringList({"Keys", "About Fernwick"}));
}

TEST_F(Menus, showShortcuts) {
    EXPECT_EQ(item("New Game")->shortcut(), QKeySequence("Ctrl+N"));
    EXPECT_EQ(item("Quit")->shortcut(), QKeySequence("Ctrl+Q"));
    // The menu displays the first one.
    EXPECT_EQ(item("Toggle Full Screen")->shortcuts(),
              QList<QKeySequence>({QKeySequence("F11"), QKeySequence("Ctrl+Meta+F")}));
    EXPECT_EQ(item("High Scores")->shortcut(), QKeySequence("Ctrl+L"));
    EXPECT_EQ(item("Resume")->shortcut(), QKeySequence("Ctrl+P"));
    EXPECT_TRUE(item("Sound Effects")->shortcuts().isEmpty());
    EXPECT_EQ(item("Keys")->shortcut(), QKeySequence("F1"));
    EXPECT_TRUE(item("About Fernwick")->shortcuts().isEmpty());
}

TEST_F(Menus, doNotRepeatACommandWhileItsKeysAreHeld) {
    for (const QString& title :
         {QStringLiteral("File"), QStringLiteral("Game"), QStringLiteral("Help")}) {
        for (const QAction* action : menu(title)->actions()) {
            EXPECT_TRUE(action->isSeparator() || !action->autoRepeat())
                << action->text().toStdString();
        }
    }
}

TEST_F(Menus, enableTheirItemsInEveryPhase) {
    inEveryPhase([this](Session::Phase phase) {
        const bool running = phase == Session::Phase::running;
        EXPECT_EQ(canChoose("New Game"), phase != Session::Phase::awaitingName);
        EXPECT_TRUE(canChoose(running ? "Pause" : "Resume"));
        EXPECT_EQ(item(running ? "Resume" : "Pause"), nullptr);
        expectUnconditionalItemsEnabled();
    });
}

TEST_F(Menus, disableNewGameWhileASheetIsOpen) {
    for (const char* sheet : {"High Scores", "Keys", "About Fernwick"}) {
        choose(QString::fromLatin1(sheet));
        EXPECT_FALSE(canChoose("New Game")) << sheet;
        expectUnconditionalItemsEnabled();

        session.closeSheet();
        processEvents();
        EXPECT_TRUE(canChoose("New Game")) << sheet;
    }
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

TEST_F(Menus, doNotResumeBeforeTheFirstRun) {
    choose("Resume");

    EXPECT_FALSE(session.started());
}

TEST_F(Menus, openTheScoreSheet) {
    choose("High Scores");

    EXPECT_TRUE(session.showingScores());
}

TEST_F(Menus, openTheSheetsOfHelp) {
    choose("Keys");
    EXPECT_EQ(session.sheet(), Session::Sheet::keys);

    choose("About Fernwick");
    EXPECT_EQ(session.sheet(), Session::Sheet::about);
}

TEST_F(Menus, openTheScoreSheetWhileANameIsAwaited) {
    playToNameEntry();

    choose("High Scores");

    EXPECT_TRUE(session.showingScores());
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(Menus, switchTheSoundOffAndOn) {
    EXPECT_TRUE(item("Sound Effects")->isCheckable());
    EXPECT_TRUE(item("Sound Effects")->isChecked());

    choose("Sound Effects");
    EXPECT_FALSE(session.sound());
    EXPECT_EQ(storedPreferences().boolean("sound"), false);

    choose("Sound Effects");
    EXPECT_TRUE(session.sound());
    EXPECT_EQ(storedPreferences().boolean("sound"), true);
}

TEST_F(Menus, showASoundSwitchedElsewhere) {
    session.setSound(false);
    processEvents();

    EXPECT_FALSE(item("Sound Effects")->isChecked());
}

TEST_F(Menus, toggleFullScreen) {
    ASSERT_TRUE(window.isFullScreen());

    choose("Toggle Full Screen");
    EXPECT_FALSE(window.isFullScreen());
    choose("Toggle Full Screen");
    EXPECT_TRUE(window.isFullScreen());
}
