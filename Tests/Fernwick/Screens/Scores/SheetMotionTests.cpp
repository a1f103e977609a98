#include <QMenuBar>
#include <QTest>
#include <QVariantAnimation>
#include <QWindow>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Look/Palette.hpp"
#include "Screens/Main/SheetLayer.hpp"
#include "Screens/Scores/HighScoresView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Support/Look.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"

namespace {

/// The animation of the score sheet when it opens and closes.
class SheetMotion : public WindowTest {
protected:
    [[nodiscard]] QVariantAnimation& motion() const {
        return *child<SheetLayer>().findChild<QVariantAnimation*>();
    }

    /// Pauses the animation halfway.
    void pauseHalfway() {
        ASSERT_EQ(motion().state(), QAbstractAnimation::Running);
        motion().pause();
        motion().setCurrentTime(motion().duration() / 2);
    }

    void openAndWait() {
        session.openScores();
        waitForAnimations();
    }

    [[nodiscard]] HighScoresView& sheet() const { return child<HighScoresView>(); }

    void click(const QWidget& control) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          control.mapTo(&window, control.rect().center()));
        processEvents();
    }

    [[nodiscard]] QList<QWidget*> bandElements() const {
        return {&child<QMenuBar>(), button("Minimise"), button("Maximise"), button("Close")};
    }

    /// The green of the brightest pixel of `element`.
    [[nodiscard]] double brightest(const QImage& seen, const QWidget& element) const {
        const QRect area = rectOf(element);
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                found = std::max(found, Look::colourAt(seen, QPoint(x, y)).green());
            }
        }
        return found;
    }

    /// The colour of an empty point of the score sheet.
    [[nodiscard]] QColor sheetColour(const QImage& seen) const {
        return Look::colourAt(seen, sheet().mapTo(&window, QPoint(14, sheet().height() / 2)));
    }
};

}  // namespace

TEST_F(SheetMotion, fadesInOverTheScreenBehind) {
    const QImage before = grab();
    session.openScores();
    const QColor behind = sheetColour(before);
    pauseHalfway();
    const QColor halfway = sheetColour(grab());
    motion().resume();
    waitForAnimations();
    const QColor finished = sheetColour(grab());

    Look::expectColour(finished, Garden::night, 0);
    EXPECT_NE(halfway, behind);
    EXPECT_NE(halfway, finished);
}

TEST_F(SheetMotion, dimsTheTitleBandWithTheScreenBehind) {
    constexpr int groundShowingThrough = 9;
    leaveFullScreen();
    const QImage before = grab();
    session.openScores();
    pauseHalfway();
    const QImage halfway = grab();
    motion().resume();
    waitForAnimations();
    const QImage finished = grab();
    session.closeScores();
    waitForAnimations();

    for (const QWidget* element : bandElements()) {
        const double bright = brightest(before, *element);
        EXPECT_NEAR(brightest(finished, *element), bright * (1 - SheetLayer::scrimOpacity),
                    groundShowingThrough);
        EXPECT_LT(brightest(finished, *element), brightest(halfway, *element));
        EXPECT_LT(brightest(halfway, *element), bright);
    }
    EXPECT_EQ(grab(), before);
}

TEST_F(SheetMotion, dimsTheTitleBandUnderReducedMotion) {
    const StillStyle still;
    leaveFullScreen();
    const QImage before = grab();
    openScores();

    for (const QWidget* element : bandElements()) {
        EXPECT_LT(brightest(grab(), *element), 0.6 * brightest(before, *element));
    }
    session.closeScores();
    EXPECT_EQ(grab(), before);
}

TEST_F(SheetMotion, dimsNoMenusThatAreInUse) {
    leaveFullScreen();
    auto& bar = child<QMenuBar>();
    const double bright = brightest(grab(), bar);
    openAndWait();

    bar.setActiveAction(bar.actions().constLast());
    processEvents();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_GE(brightest(grab(), bar), bright);

    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(&bar, Qt::Key_Escape);
    processEvents();
    EXPECT_LT(brightest(grab(), bar), 0.6 * bright);
}

TEST_F(SheetMotion, dimsNoMenuBarOfFullScreen) {
    leaveFullScreen();
    auto& bar = child<QMenuBar>();
    const double bright = brightest(grab(), bar);
    window.showFullScreen();
    waitForFullScreen(true);
    openAndWait();

    bar.show();
    processEvents();

    EXPECT_GE(brightest(grab(), bar), bright);
}

TEST_F(SheetMotion, leavesTheWindowButtonsUsable) {
    leaveFullScreen();
    openAndWait();

    click(*button("Minimise"));

    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMinimized(); }));
    EXPECT_TRUE(session.showingScores());
}

TEST_F(SheetMotion, risesWhileFadingIn) {
    session.openScores();
    pauseHalfway();
    const QImage halfway = grab();
    motion().resume();
    waitForAnimations();
    const QImage finished = grab();
    // The top border of the sheet, which is brighter than what is above and below.
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

    EXPECT_GT(brightestRow(halfway), brightestRow(finished));
}

TEST_F(SheetMotion, acceptsClicksAndKeysWhileFadingIn) {
    session.openScores();
    pauseHalfway();

    click(*Screen::button(sheet(), "Swift"));
    EXPECT_EQ(session.scorePace(), Pace::swift);
    Keyboard::press(window, Qt::Key_Tab);
    EXPECT_TRUE(sheet().isAncestorOf(window.focusWidget()));
    Keyboard::press(window, Qt::Key_Escape);
    EXPECT_FALSE(session.showingScores());
}

TEST_F(SheetMotion, startsFadingOutAtFullOpacity) {
    openAndWait();
    const QImage up = grab();
    session.closeScores();
    pauseHalfway();
    motion().setCurrentTime(motion().duration());
    const QImage leaving = grab();

    const QRect sheetRect(sheet().mapTo(&window, QPoint()), sheet().size());
    for (int y = sheetRect.top() - 2; y < sheetRect.bottom() + 2; ++y) {
        for (int x = sheetRect.left() - 2; x < sheetRect.right() + 2; ++x) {
            ASSERT_LE(Look::distance(leaving.pixelColor(x, y), up.pixelColor(x, y)), 2)
                << x << ", " << y;
        }
    }
}

TEST_F(SheetMotion, endsSoftlyInBothDirections) {
    const auto presenceNearTheEnd = [this](double share) {
        motion().pause();
        motion().setCurrentTime(qRound(motion().duration() * share));
        const double presence = motion().currentValue().toDouble();
        motion().resume();
        waitForAnimations();
        return presence;
    };

    session.openScores();
    EXPECT_GT(presenceNearTheEnd(0.85), 0.95);
    session.closeScores();
    EXPECT_LT(presenceNearTheEnd(0.15), 0.05);
}

TEST_F(SheetMotion, restoresTheScreenBehind) {
    const QImage before = grab();
    openAndWait();
    session.closeScores();
    pauseHalfway();
    EXPECT_NE(grab(), before);

    motion().resume();
    waitForAnimations();

    EXPECT_EQ(grab(), before);
}

TEST_F(SheetMotion, takesNoInputWhileFadingOut) {
    startAndPauseRun();
    openAndWait();
    const QColor up = sheetColour(grab());
    session.closeScores();
    pauseHalfway();

    EXPECT_FALSE(sheet().isVisible());
    EXPECT_NE(sheetColour(grab()), up);
    Keyboard::press(window, Qt::Key_Space);
    EXPECT_TRUE(session.running());
    Keyboard::press(window, Qt::Key_Escape);
    EXPECT_FALSE(session.running());
    click(*button("Keep growing"));
    EXPECT_TRUE(session.running());
}

TEST_F(SheetMotion, returnsTheFocusBeforeTheFadeOutEnds) {
    playToNameEntry();
    openAndWait();
    session.closeScores();
    pauseHalfway();

    EXPECT_TRUE(child<NameField>().hasFocus());
    Keyboard::press(window, Qt::Key_R);
    EXPECT_EQ(session.playerName(), "r");
}

TEST_F(SheetMotion, canReverseMidway) {
    const QImage before = grab();
    openAndWait();
    const QImage up = grab();

    session.closeScores();
    pauseHalfway();
    motion().resume();
    session.openScores();
    EXPECT_TRUE(sheet().isVisible());
    waitForAnimations();
    EXPECT_EQ(grab(), up);

    session.closeScores();
    session.openScores();
    session.closeScores();
    waitForAnimations();
    EXPECT_EQ(grab(), before);
}

TEST_F(SheetMotion, endsWhenTheWindowIsResized) {
    leaveFullScreen();
    openAndWait();
    session.closeScores();
    pauseHalfway();
    motion().resume();
    window.resize(1000, 900);
    processEvents();

    EXPECT_TRUE(animationsFinished());
    EXPECT_FALSE(child<SheetLayer>().isVisible());
}

TEST_F(SheetMotion, wakesTheEventLoopOnlyWhileAnimating) {
    processEvents();
    EXPECT_LE(wakeups(200), idleWakeups);

    session.openScores();
    EXPECT_GT(wakeups(200), idleWakeups);
    waitForAnimations();
    EXPECT_LE(wakeups(200), idleWakeups);

    session.closeScores();
    EXPECT_GT(wakeups(200), idleWakeups);
    waitForAnimations();
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(SheetMotion, isSkippedUnderReducedMotion) {
    const StillStyle still;
    processEvents();
    const QImage before = grab();

    session.openScores();
    EXPECT_TRUE(animationsFinished());
    Look::expectColour(sheetColour(grab()), Garden::night, 0);
    session.closeScores();
    EXPECT_TRUE(animationsFinished());
    processEvents();

    EXPECT_EQ(grab(), before);
}
