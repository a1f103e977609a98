#include <QApplication>
#include <QTest>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"

namespace {

class HighScoresSheet : public WindowTest {
protected:
    /// Exists once it has been opened.
    [[nodiscard]] HighScoresView& sheet() const { return child<HighScoresView>(); }

    [[nodiscard]] bool isOpen() const {
        const auto* sheet = window.findChild<HighScoresView*>();
        return sheet != nullptr && sheet->isVisible();
    }

    [[nodiscard]] QAbstractButton* speed(const QString& name) const {
        return Screen::button(sheet(), name);
    }

    void pressKey(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        processEvents();
    }
};

}  // namespace

TEST_F(HighScoresSheet, isClosedAtFirst) {
    EXPECT_FALSE(isOpen());
}

TEST_F(HighScoresSheet, showsItsTexts) {
    openScores();

    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(shows("The high scores."));
    EXPECT_TRUE(shows("Top 10 for each speed · saved on this computer"));
    EXPECT_TRUE(shows("Speed"));
    EXPECT_TRUE(canPress("Done"));
}

TEST_F(HighScoresSheet, opensOnTheChosenPace) {
    session.choosePace(Pace::swift);

    openScores();

    EXPECT_TRUE(speed("Swift")->isChecked());
    EXPECT_FALSE(speed("Classic")->isChecked());
}

TEST_F(HighScoresSheet, listsTheLeadersOfTheSelectedPace) {
    playAndSaveAs("Ada");
    const QString row = QStringLiteral("01 Ada %1").arg(session.game().score());

    openScores();
    EXPECT_TRUE(Screen::shows(sheet(), row));

    speed("Gentle")->click();
    processEvents();
    EXPECT_FALSE(Screen::shows(sheet(), row));
    EXPECT_TRUE(Screen::shows(sheet(), "A fresh start. Be the first on the board."));
}

TEST_F(HighScoresSheet, doesNotChangeThePaceOfTheGame) {
    openScores();

    speed("Swift")->click();
    processEvents();

    EXPECT_EQ(session.scorePace(), Pace::swift);
    EXPECT_EQ(session.pace(), Pace::classic);
}

TEST_F(HighScoresSheet, closesWithDone) {
    openScores();

    press("Done");

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isOpen());
}

TEST_F(HighScoresSheet, closesOnEscapeAndLeavesTheRunPaused) {
    startRun();
    openScores();

    pressKey(Qt::Key_Escape);

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(session.running());
}

TEST_F(HighScoresSheet, closesOnEscapePressedRightAfterOpening) {
    session.openScores();

    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    processEvents();

    EXPECT_FALSE(session.showingScores());
    EXPECT_FALSE(isOpen());
}

TEST_F(HighScoresSheet, keepsKeysFromTheGame) {
    startRun();
    openScores();
    const SnakeCore::Game before = session.game();

    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_R, Qt::Key_Up, Qt::Key_A}) {
        pressKey(key);
    }

    EXPECT_EQ(session.game(), before);
    EXPECT_FALSE(session.running());
}

TEST_F(HighScoresSheet, keepsTheFocusInside) {
    openScores();

    for (int presses = 0; presses < 12; ++presses) {
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(sheet().isAncestorOf(QApplication::focusWidget()));
    }
    for (int presses = 0; presses < 12; ++presses) {
        pressKey(Qt::Key_Backtab);
        EXPECT_TRUE(sheet().isAncestorOf(QApplication::focusWidget()));
    }
}

TEST_F(HighScoresSheet, returnsTheFocusToTheNameField) {
    playToNameEntry();
    openScores();
    EXPECT_FALSE(child<NameField>().hasFocus());

    pressKey(Qt::Key_Escape);

    EXPECT_TRUE(child<NameField>().hasFocus());
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(HighScoresSheet, keepsItsWidthWithALongName) {
    playAndSaveAs(QString(24, u'W'));

    openScores();

    EXPECT_EQ(sheet().width(), 440);
}

TEST_F(HighScoresSheet, reopensOnTheChosenPace) {
    openScores();
    speed("Swift")->click();
    press("Done");

    openScores();

    EXPECT_TRUE(speed("Classic")->isChecked());
}
