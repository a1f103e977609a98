#include <algorithm>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/LookTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"

namespace {

const QStringList marks{"Minimise", "Maximise", "Close"};
const QStringList speedStops{"Gentle", "Classic", "Swift"};
const QStringList icons{"High scores", "Toggle sound effects"};
const QStringList pauseIcon{"Pause or resume"};

class TabOrder : public LookTest {
protected:
    using LookTest::LookTest;

    void expectStops(const QStringList& names) {
        const QList<QWidget*> stops = Keyboard::tabStops(window);
        EXPECT_EQ(Keyboard::namesOf(stops), names)
            << Keyboard::namesOf(stops).join(", ").toStdString();
        expectInTheOrderOfSight(stops);
        expectTheSameBackwards(names);
    }

    /// Shift and Tab lead the other way round, from wherever the focus is.
    void expectTheSameBackwards(QStringList names) {
        QStringList back = Keyboard::namesOf(Keyboard::tabStops(window, Qt::Key_Backtab));
        std::reverse(back.begin(), back.end());
        // Begun at another stop, it is the same round.
        const auto begin = std::find(names.begin(), names.end(), back.front());
        std::rotate(names.begin(), begin, names.end());
        EXPECT_EQ(back, names) << back.join(", ").toStdString();
    }

    /// From the top down, and from the left within a row.
    void expectInTheOrderOfSight(const QList<QWidget*>& stops) const {
        for (qsizetype index = 1; index < stops.size(); ++index) {
            const QRect before = placeOf(*stops[index - 1]);
            const QRect next = placeOf(*stops[index]);
            const bool sameRow =
                next.top() <= before.center().y() && next.bottom() >= before.center().y();
            EXPECT_TRUE(sameRow ? next.x() > before.x() : next.y() > before.y())
                << Screen::nameOf(stops[index]).toStdString();
        }
    }
};

class TabOrderWithScores : public TabOrder {
protected:
    TabOrderWithScores() : TabOrder({{"A", 9}, {"B", 8}, {"C", 7}, {"D", 6}, {"E", 5}}) {}
};

INSTANTIATE_TEST_SUITE_P(Smallest, TabOrder, ::testing::Values(QSize(820, 760)), nameOfSize);
INSTANTIATE_TEST_SUITE_P(Smallest, TabOrderWithScores, ::testing::Values(QSize(820, 760)),
                         nameOfSize);

}  // namespace

TEST_P(TabOrder, beforeTheFirstRunLeadsPastTheSpeedsToTheCard) {
    expectStops(marks + speedStops + QStringList("Let's grow") + icons);
}

TEST_P(TabOrder, inARunLeadsToTheSymbolsAlone) {
    startRun();

    expectStops(marks + icons + pauseIcon);
}

TEST_P(TabOrder, inAPauseLeadsToTheCardAndTheSymbols) {
    pauseRun();

    expectStops(marks + QStringList("Keep growing") + icons + pauseIcon);
}

TEST_P(TabOrder, passesOverSavingWhileTheNameIsEmpty) {
    endRunAwaitingName();
    window.setFocus();

    expectStops(marks + QStringList{"Player name", "Skip saving"} + icons);
}

TEST_P(TabOrder, leadsThroughTheFormOnceThereIsAName) {
    endRunAwaitingName();
    session.editName(QStringLiteral("Ada"));
    settle();
    window.setFocus();

    expectStops(marks + QStringList{"Player name", "Save score", "Skip saving"} + icons);
}

TEST_P(TabOrder, passesOverABoardThatHasNothingToScroll) {
    saveRunAs("Ada");

    expectStops(marks + speedStops + QStringList("Play again") + icons);
}

TEST_P(TabOrderWithScores, stopsAtABoardThatScrolls) {
    skipRun();

    expectStops(marks + speedStops + QStringList{"Scores", "Play again"} + icons);
}

TEST_P(TabOrder, staysInTheSheetWhileItIsUp) {
    session.openScores();
    settle();

    expectStops(speedStops + QStringList("Done"));
}

TEST_P(TabOrder, leavesTheMarksOutInFullScreen) {
    window.showFullScreen();
    waitForFullScreen(true);

    expectStops(speedStops + QStringList("Let's grow") + icons);
}
