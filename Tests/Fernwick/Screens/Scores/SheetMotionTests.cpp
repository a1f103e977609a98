#include <QTest>
#include <QVariantAnimation>
#include <QWindow>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Screens/Scores/SheetShade.hpp"
#include "Support/Look.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"

namespace {

/// The sheet of high scores while it comes and goes.
class SheetMotion : public WindowTest {
protected:
    [[nodiscard]] QVariantAnimation& motion() const {
        return *window.findChild<SheetShade*>()->findChild<QVariantAnimation*>();
    }

    /// Stops the clock of the motion in the middle of its way.
    void holdHalfway() {
        ASSERT_EQ(motion().state(), QAbstractAnimation::Running);
        motion().pause();
        motion().setCurrentTime(motion().duration() / 2);
    }

    void openAndWait() {
        session.openScores();
        waitUntilStill();
    }

    void waitUntilStill() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return isStill(); }));
        settle();
    }

    [[nodiscard]] QImage picture() { return window.grab().toImage(); }

    [[nodiscard]] HighScoresView& sheet() const { return *window.findChild<HighScoresView*>(); }

    void click(const QWidget& control) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          control.mapTo(&window, control.rect().center()));
        settle();
    }

    /// A place on the sheet with nothing on it.
    [[nodiscard]] QColor plainSheet(const QImage& seen) const {
        return Look::colourAt(seen, sheet().mapTo(&window, QPoint(14, sheet().height() / 2)));
    }
};

}  // namespace

TEST_F(SheetMotion, comesOutOfWhatLiesBehind) {
    const QImage before = picture();
    session.openScores();
    const QColor behind = plainSheet(before);
    holdHalfway();
    const QColor halfway = plainSheet(picture());
    motion().resume();
    waitUntilStill();
    const QColor atLast = plainSheet(picture());

    Look::expectColour(atLast, Garden::night, 0);
    EXPECT_NE(halfway, behind);
    EXPECT_NE(halfway, atLast);
}

TEST_F(SheetMotion, risesALittleAsItComes) {
    session.openScores();
    holdHalfway();
    const QImage halfway = picture();
    motion().resume();
    waitUntilStill();
    const QImage atLast = picture();
    // Through the upper edge of the sheet, which is brighter than both sides of it.
    const auto brightestRow = [this](const QImage& seen) {
        const QPoint middle = sheet().mapTo(&window, QPoint(sheet().width() / 2, 0));
        int brightest = middle.y() - 5;
        for (int y = brightest; y < middle.y() + 20; ++y) {
            const auto greenAt = [&](int row) {
                return Look::colourAt(seen, QPoint(middle.x(), row)).green();
            };
            brightest = greenAt(y) > greenAt(brightest) ? y : brightest;
        }
        return brightest;
    };

    EXPECT_GT(brightestRow(halfway), brightestRow(atLast));
}

TEST_F(SheetMotion, takesClicksAndKeysBeforeItHasCome) {
    session.openScores();
    holdHalfway();

    click(*Screen::button(sheet(), "Swift"));
    EXPECT_EQ(session.scorePace(), Pace::swift);
    Keyboard::press(window, Qt::Key_Tab);
    EXPECT_TRUE(sheet().isAncestorOf(window.focusWidget()));
    Keyboard::press(window, Qt::Key_Escape);
    EXPECT_FALSE(session.showingScores());
}

TEST_F(SheetMotion, beginsToGoAsItStood) {
    openAndWait();
    const QImage up = picture();
    session.closeScores();
    holdHalfway();
    motion().setCurrentTime(motion().duration());
    const QImage leaving = picture();

    const QRect place(sheet().mapTo(&window, QPoint()), sheet().size());
    for (int y = place.top() - 2; y < place.bottom() + 2; ++y) {
        for (int x = place.left() - 2; x < place.right() + 2; ++x) {
            ASSERT_LE(Look::distance(leaving.pixelColor(x, y), up.pixelColor(x, y)), 2)
                << x << ", " << y;
        }
    }
}

TEST_F(SheetMotion, leavesWhatLiesBehindAsItWas) {
    const QImage before = picture();
    openAndWait();
    session.closeScores();
    holdHalfway();
    EXPECT_NE(picture(), before);

    motion().resume();
    waitUntilStill();

    EXPECT_EQ(picture(), before);
}

TEST_F(SheetMotion, lingersForTheEyeAloneOnceClosed) {
    pauseRun();
    openAndWait();
    const QColor up = plainSheet(picture());
    session.closeScores();
    holdHalfway();

    EXPECT_FALSE(sheet().isVisible());
    EXPECT_NE(plainSheet(picture()), up);
    Keyboard::press(window, Qt::Key_Space);
    EXPECT_TRUE(session.running());
    Keyboard::press(window, Qt::Key_Escape);
    EXPECT_FALSE(session.running());
    click(*button("Keep growing"));
    EXPECT_TRUE(session.running());
}

TEST_F(SheetMotion, givesTheFocusBackBeforeItHasGone) {
    endRunAwaitingName();
    openAndWait();
    session.closeScores();
    holdHalfway();

    EXPECT_TRUE(window.findChild<NameField*>()->hasFocus());
    Keyboard::press(window, Qt::Key_R);
    EXPECT_EQ(session.playerName(), "r");
}

TEST_F(SheetMotion, turnsRoundOnItsWay) {
    const QImage before = picture();
    openAndWait();
    const QImage up = picture();

    session.closeScores();
    holdHalfway();
    motion().resume();
    session.openScores();
    EXPECT_TRUE(sheet().isVisible());
    waitUntilStill();
    EXPECT_EQ(picture(), up);

    session.closeScores();
    session.openScores();
    session.closeScores();
    waitUntilStill();
    EXPECT_EQ(picture(), before);
}

TEST_F(SheetMotion, leavesNothingInAWindowThatIsResizedMeanwhile) {
    leaveFullScreen();
    openAndWait();
    session.closeScores();
    holdHalfway();
    motion().resume();
    window.resize(1000, 900);
    settle();

    EXPECT_TRUE(isStill());
    EXPECT_FALSE(window.findChild<SheetShade*>()->isVisible());
}

TEST_F(SheetMotion, wakesTheProcessorOnlyOnItsWay) {
    settle();
    EXPECT_LE(wakeups(200), idleWakeups);

    session.openScores();
    EXPECT_GT(wakeups(200), idleWakeups);
    waitUntilStill();
    EXPECT_LE(wakeups(200), idleWakeups);

    session.closeScores();
    EXPECT_GT(wakeups(200), idleWakeups);
    waitUntilStill();
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(SheetMotion, isNoneUnderReducedMotion) {
    const StillStyle still;
    settle();
    const QImage before = picture();

    session.openScores();
    EXPECT_TRUE(isStill());
    Look::expectColour(plainSheet(picture()), Garden::night, 0);
    session.closeScores();
    EXPECT_TRUE(isStill());
    settle();

    EXPECT_EQ(picture(), before);
}
