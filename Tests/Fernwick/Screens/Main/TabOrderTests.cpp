#include <algorithm>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/LookTest.hpp"
#include "Screens/Scores/HighScoresView.hpp"

namespace {

const QStringList windowButtons{"Minimise", "Maximise", "Close"};
const QStringList speeds{"Gentle", "Classic", "Swift"};
const QStringList iconButtons{"High scores", "Toggle sound effects"};
const QStringList pauseButton{"Pause or resume"};

class TabOrder : public LookTest {
protected:
    using LookTest::LookTest;

    void expectStops(const QStringList& names) {
        const QList<QWidget*> stops = Keyboard::tabStops(window);
        EXPECT_EQ(Keyboard::namesOf(stops), names)
            << Keyboard::namesOf(stops).join(", ").toStdString();
        expectVisualOrder(stops);
        expectSameBackwards(names);
    }

    /// Expects Shift+Tab to reach the same controls in reverse order.
    void expectSameBackwards(QStringList names) {
        QStringList back = Keyboard::namesOf(Keyboard::tabStops(window, Qt::Key_Backtab));
        std::reverse(back.begin(), back.end());
        // It may start at another control of the same cycle.
        const auto begin = std::find(names.begin(), names.end(), back.front());
        std::rotate(names.begin(), begin, names.end());
        EXPECT_EQ(back, names) << back.join(", ").toStdString();
    }

    /// Expects the order top to bottom, and left to right within a row.
    void expectVisualOrder(const QList<QWidget*>& stops) const {
        for (qsizetype index = 1; index < stops.size(); ++index) {
            const QRect before = rectOf(*stops[index - 1]);
            const QRect next = rectOf(*stops[index]);
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

INSTANTIATE_TEST_SUITE_P(Smallest, TabOrder, ::testing::Values(QSize(820, 760)), sizeName);
INSTANTIATE_TEST_SUITE_P(Smallest, TabOrderWithScores, ::testing::Values(QSize(820, 760)),
                         sizeName);

}  // namespace

TEST_P(TabOrder, includesSpeedsAndStartCardBeforeTheFirstRun) {
    expectStops(windowButtons + speeds + QStringList("Let's grow") + iconButtons);
}

TEST_P(TabOrder, includesOnlyButtonsWithoutTextDuringARun) {
    startRun();

    expectStops(windowButtons + iconButtons + pauseButton);
}

TEST_P(TabOrder, includesThePauseCardWhilePaused) {
    startAndPauseRun();

    expectStops(windowButtons + QStringList("Keep growing") + iconButtons + pauseButton);
}

TEST_P(TabOrder, skipsSaveWhileTheNameIsEmpty) {
    playToNameEntry();
    window.setFocus();

    expectStops(windowButtons + QStringList{"Player name", "Skip saving"} + iconButtons);
}

TEST_P(TabOrder, includesTheWholeFormOnceThereIsAName) {
    playToNameEntry();
    session.editName(QStringLiteral("Ada"));
    processEvents();
    window.setFocus();

    expectStops(windowButtons + QStringList{"Player name", "Save score", "Skip saving"} +
                iconButtons);
}

TEST_P(TabOrder, skipsAScoreListThatDoesNotScroll) {
    playAndSaveAs("Ada");

    expectStops(windowButtons + speeds + QStringList("Play again") + iconButtons);
}

TEST_P(TabOrderWithScores, includesAScoreListThatScrolls) {
    playAndSkip();

    expectStops(windowButtons + speeds + QStringList{"Scores", "Play again"} + iconButtons);
}

TEST_P(TabOrder, staysInTheOpenScoreSheet) {
    openScores();

    expectStops(speeds + QStringList("Done"));
}

TEST_P(TabOrder, skipsTheWindowButtonsInFullScreen) {
    window.showFullScreen();
    waitForFullScreen(true);

    expectStops(speeds + QStringList("Let's grow") + iconButtons);
}
