#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/ScoreRow.hpp"
#include "Screens/Scores/ScoreRows.hpp"

namespace {

class GameOverCard : public WindowTest {
protected:
    [[nodiscard]] NameField& field() const { return child<NameField>(); }

    [[nodiscard]] QString resultLine(const QString& pace) const {
        return QStringLiteral("%1 POINTS  ·  %2").arg(session.game().score()).arg(pace);
    }

    void type(const QString& text) {
        QTest::keyClicks(&field(), text);
        processEvents();
    }
};

const SavedScores sevenHighAndThreeLow{{"A", 9000}, {"B", 9000}, {"C", 9000}, {"D", 9000},
                                       {"E", 9000}, {"F", 9000}, {"G", 9000}, {"H", 0},
                                       {"I", 0},    {"J", 0}};

class CardOverAFullTable : public WindowTest {
protected:
    CardOverAFullTable() : WindowTest(sevenHighAndThreeLow) {}
};

}  // namespace

TEST_F(GameOverCard, showsTheScoreAndPaceOfTheRun) {
    session.choosePace(Pace::swift);
    playToNameEntry();

    EXPECT_TRUE(shows("Game over."));
    EXPECT_TRUE(shows(resultLine("Swift")));
}

TEST_F(GameOverCard, isCreatedWhenTheFirstRunEnds) {
    EXPECT_EQ(window.findChild<GameOverView*>(), nullptr);
    startRun();
    EXPECT_EQ(window.findChild<GameOverView*>(), nullptr);

    endRun();

    auto* card = window.findChild<GameOverView*>();
    ASSERT_NE(card, nullptr);
    session.skipSaving();
    playToNameEntry();
    EXPECT_EQ(window.findChildren<GameOverView*>(), QList{card});
}

TEST_F(GameOverCard, asksForAName) {
    playToNameEntry();

    EXPECT_TRUE(shows("Leave your name in the garden."));
    EXPECT_TRUE(shows("Player name"));
    EXPECT_EQ(field().placeholderText(), "Your name");
    EXPECT_TRUE(shows("Up to 24 characters · saved on this computer"));
    EXPECT_TRUE(shows("Save score"));
    EXPECT_TRUE(canPress("Skip saving"));
    EXPECT_FALSE(shows("Play again"));
}

TEST_F(GameOverCard, focusesTheNameField) {
    playToNameEntry();

    EXPECT_TRUE(field().hasFocus());
}

TEST_F(GameOverCard, typesGameKeysIntoTheName) {
    playToNameEntry();

    type("war r W");

    EXPECT_EQ(session.playerName(), "war r W");
    EXPECT_TRUE(session.awaitingName());
}

TEST_F(GameOverCard, typesAKeyPressedRightAfterTheLastTickIntoTheName) {
    startAndEndRun();

    QTest::keyClick(window.windowHandle(), Qt::Key_W);

    EXPECT_EQ(session.playerName(), "w");
}

TEST_F(GameOverCard, enablesSaveOnlyForANonBlankName) {
    playToNameEntry();
    EXPECT_FALSE(canPress("Save score"));

    type("   ");
    EXPECT_FALSE(canPress("Save score"));
    EXPECT_TRUE(canPress("Skip saving"));

    type("a");
    EXPECT_TRUE(canPress("Save score"));
}

TEST_F(GameOverCard, ignoresReturnWhileTheNameIsBlank) {
    playToNameEntry();
    type("  ");

    QTest::keyClick(&field(), Qt::Key_Return);
    processEvents();

    EXPECT_TRUE(session.awaitingName());
    EXPECT_TRUE(shows("Leave your name in the garden."));
    EXPECT_EQ(field().text(), "  ");
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(GameOverCard, savesOnReturn) {
    playToNameEntry();
    type("Ada");

    QTest::keyClick(&field(), Qt::Key_Return);
    processEvents();

    EXPECT_TRUE(session.savedRun());
    EXPECT_EQ(storedPreferences().text("player-name"), "Ada");
    EXPECT_FALSE(session.running());
}

TEST_F(GameOverCard, savesWithTheButton) {
    playToNameEntry();
    type("Ada");

    press("Save score");

    EXPECT_TRUE(session.savedRun());
}

TEST_F(GameOverCard, limitsTheNameTo24Characters) {
    playToNameEntry();

    type(QString(25, u'x'));

    EXPECT_EQ(field().text(), QString(24, u'x'));
    EXPECT_EQ(session.playerName(), QString(24, u'x'));
}

TEST_F(GameOverCard, countsGraphemeClustersAsCharacters) {
    playToNameEntry();
    const QString family = QStringLiteral("👨‍👩‍👧‍👦");

    field().insert(family.repeated(24));
    processEvents();
    EXPECT_EQ(field().text(), family.repeated(24));

    field().insert(QStringLiteral("x"));
    processEvents();
    EXPECT_EQ(field().text(), family.repeated(24));
}

TEST_F(GameOverCard, truncatesALongerPaste) {
    playToNameEntry();

    field().insert(QString(300, u'ä'));
    processEvents();

    EXPECT_EQ(field().text(), QString(24, u'ä'));
}

TEST_F(GameOverCard, prefillsTheLastName) {
    playAndSaveAs("  Ada   Lovelace ");

    playToNameEntry();

    EXPECT_EQ(field().text(), "Ada Lovelace");
    EXPECT_TRUE(canPress("Save score"));
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(GameOverCard, listsTheSavedRun) {
    playAndSaveAs("Ada");

    EXPECT_TRUE(shows("Score saved · Top 10"));
    EXPECT_TRUE(shows(QStringLiteral("01 Ada %1").arg(session.game().score())));
    EXPECT_TRUE(canPress("Play again"));
    EXPECT_TRUE(shows("SPACE TO PLAY AGAIN"));
    EXPECT_FALSE(shows("Save score"));
}

TEST_F(GameOverCard, showsTheScoreListWithoutTheRunAfterSkipping) {
    playToNameEntry();
    type("Ada");

    press("Skip saving");

    EXPECT_TRUE(shows("Top 10"));
    EXPECT_FALSE(shows("Score saved · Top 10"));
    EXPECT_TRUE(shows("A fresh start. Be the first on the board."));
    EXPECT_TRUE(session.scores().entries().empty());
}

TEST_F(GameOverCard, keepsShowingTheScoresOfTheRunsPace) {
    session.choosePace(Pace::swift);
    playAndSaveAs("Ada");

    press("Gentle");

    EXPECT_TRUE(shows(resultLine("Swift")));
    EXPECT_TRUE(shows(QStringLiteral("01 Ada %1").arg(session.game().score())));
}

TEST_F(GameOverCard, startsANewRunWithTheButton) {
    playAndSaveAs("Ada");

    press("Play again");

    EXPECT_TRUE(session.running());
    EXPECT_FALSE(shows("Game over."));
}

TEST_F(GameOverCard, startsANewRunOnSpaceRightAfterSaving) {
    playToNameEntry();
    type("Ada");
    QTest::keyClick(&field(), Qt::Key_Return);
    processEvents();

    QTest::keyClick(&window, Qt::Key_Space);

    EXPECT_TRUE(session.running());
}

TEST_F(GameOverCard, startsANewRunOnSpaceRightAfterSkippingWithTheKeyboard) {
    playToNameEntry();
    button("Skip saving")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button("Skip saving"), Qt::Key_Return);
    processEvents();
    ASSERT_FALSE(session.awaitingName());

    QTest::keyClick(&window, Qt::Key_Space);

    EXPECT_TRUE(session.running());
}

TEST_F(CardOverAFullTable, showsTheNewRowInTheMiddle) {
    playAndSaveAs("Ada");

    const auto& list = *child<GameOverView>().findChild<ScoreRows*>();
    ScoreRow* row = list.findChildren<ScoreRow*>()[7];
    ASSERT_TRUE(Screen::nameOf(row).contains(QStringLiteral("Ada")));
    EXPECT_NEAR(row->mapTo(&list, QRectF(row->rect()).center()).y(), list.height() / 2.0, 1);
}

TEST_F(CardOverAFullTable, staysWhereItIsScrolledWhenTheSoundIsTurnedOff) {
    playAndSaveAs("Ada");
    auto& scrolling = *child<GameOverView>().findChild<QScrollArea*>()->verticalScrollBar();
    ASSERT_GT(scrolling.value(), 0);
    scrolling.setValue(0);

    session.setSound(!session.sound());
    processEvents();

    EXPECT_EQ(scrolling.value(), 0);
}
