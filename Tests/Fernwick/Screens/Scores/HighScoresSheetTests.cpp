#include <QApplication>
#include <QTest>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

class HighScoresSheet : public WindowTest {
protected:
    void open() {
        session.openScores();
        settle();
    }

    [[nodiscard]] HighScoresView* sheet() const { return window.findChild<HighScoresView*>(); }

    [[nodiscard]] bool isUp() const { return sheet() != nullptr && sheet()->isVisible(); }

    [[nodiscard]] QAbstractButton* speed(const QString& name) const {
        return Screen::button(*sheet(), name);
    }

    void pressKey(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
    }
};

}  // namespace

TEST_F(HighScoresSheet, isNotThereUntilItIsAskedFor) {
    EXPECT_FALSE(isUp());
}

TEST_F(HighScoresSheet, showsItsTexts) {
    open();

    EXPECT_TRUE(isUp());
    EXPECT_TRUE(shows("The high scores."));
    EXPECT_TRUE(shows("Top 10 for each speed · saved on this Mac"));
    EXPECT_TRUE(shows("Speed"));
    EXPECT_TRUE(canPress("Done"));
}

TEST_F(HighScoresSheet, opensOnTheChosenPace) {
    session.choosePace(Pace::swift);

    open();

    EXPECT_TRUE(speed("Swift")->isChecked());
    EXPECT_FALSE(speed("Classic")->isChecked());
}

TEST_F(HighScoresSheet, listsTheLeadersOfOnePace) {
    saveRunAs("Ada");
    const QString row = QStringLiteral("01 Ada %1").arg(session.game().score());

    open();
    EXPECT_TRUE(Screen::shows(*sheet(), row));

    speed("Gentle")->click();
    settle();
    EXPECT_FALSE(Screen::shows(*sheet(), row));
    EXPECT_TRUE(Screen::shows(*sheet(), "A fresh start. Be the first on the board."));
}

TEST_F(HighScoresSheet, switchesNothingButItsOwnPace) {
    open();

    speed("Swift")->click();
    settle();

    EXPECT_EQ(session.scorePace(), Pace::swift);
    EXPECT_EQ(session.pace(), Pace::classic);
}

TEST_F(HighScoresSheet, closesByDone) {
    open();

    press("Done");

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isUp());
}

TEST_F(HighScoresSheet, closesByEscapeAndLeavesTheRunPaused) {
    startRun();
    open();

    pressKey(Qt::Key_Escape);

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isUp());
    EXPECT_FALSE(session.running());
}

TEST_F(HighScoresSheet, closesByAnEscapeThatComesInTheTurnThatOpensIt) {
    session.openScores();

    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    settle();

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isUp());
}

TEST_F(HighScoresSheet, takesEveryKeyFromTheGame) {
    startRun();
    open();
    const SnakeCore::Game before = session.game();

    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_R, Qt::Key_Up, Qt::Key_A}) {
        pressKey(key);
    }

    EXPECT_EQ(session.game(), before);
    EXPECT_FALSE(session.running());
}

TEST_F(HighScoresSheet, keepsTheKeyboardFocusInside) {
    open();

    for (int presses = 0; presses < 12; ++presses) {
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(sheet()->isAncestorOf(QApplication::focusWidget()));
    }
    for (int presses = 0; presses < 12; ++presses) {
        pressKey(Qt::Key_Backtab);
        EXPECT_TRUE(sheet()->isAncestorOf(QApplication::focusWidget()));
    }
}

TEST_F(HighScoresSheet, givesTheFocusBackToTheNameField) {
    endRunAwaitingName();
    open();
    EXPECT_FALSE(window.findChild<NameField*>()->hasFocus());

    pressKey(Qt::Key_Escape);

    EXPECT_TRUE(window.findChild<NameField*>()->hasFocus());
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(HighScoresSheet, keepsItsWidthWhateverTheNames) {
    saveRunAs(QString(24, u'W'));

    open();

    EXPECT_EQ(sheet()->width(), 440);
}

TEST_F(HighScoresSheet, opensAgainOnTheChosenPace) {
    open();
    speed("Swift")->click();
    press("Done");

    open();

    EXPECT_TRUE(speed("Classic")->isChecked());
}
