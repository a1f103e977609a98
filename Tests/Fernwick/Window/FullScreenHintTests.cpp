#include <QTest>

#include "Fernwick/Window/Keyboard.hpp"
#include "Fernwick/Window/WindowTest.hpp"
#include "Support/Look.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"
#include "Window/FullScreenHint.hpp"

namespace {

constexpr int longestStay = 8000;

class FullScreenHints : public WindowTest {
protected:
    explicit FullScreenHints(const SavedScores& saved = {}) : WindowTest(saved) {}

    void showHint() {
        FullScreenHint::showIfNew(session, window);
        processEvents();
    }

    [[nodiscard]] bool hintExists() const { return window.findChild<FullScreenHint*>() != nullptr; }

    [[nodiscard]] bool hintIsVisible() const {
        return hintExists() && child<FullScreenHint>().isVisible();
    }

    void expectGone() {
        EXPECT_FALSE(hintIsVisible());
        EXPECT_TRUE(QTest::qWaitFor([this] { return !hintExists(); }));
    }
};

class FullScreenHintsAfterPlay : public FullScreenHints {
protected:
    FullScreenHintsAfterPlay() : FullScreenHints({{"Ada", 20}}) {}
};

}  // namespace

TEST_F(FullScreenHints, appearAtTheTopCentreOfAFirstStart) {
    const QImage before = grab();

    showHint();
    waitForAnimations();

    ASSERT_TRUE(hintIsVisible());
    const QRect hint = rectOf<FullScreenHint>();
    EXPECT_LE(std::abs(hint.center().x() - window.rect().center().x()), 1);
    EXPECT_LT(hint.bottom(), 64);
    EXPECT_NE(grab(), before);
}

TEST_F(FullScreenHints, areNotificationsNamedByTheirText) {
    showHint();
    const QAccessibleInterface& hint =
        *QAccessible::queryAccessibleInterface(&child<FullScreenHint>());

    EXPECT_EQ(hint.role(), QAccessible::Notification);
    EXPECT_EQ(hint.text(QAccessible::Name), "Press F11 to leave full screen");
    EXPECT_FALSE(hint.state().invisible);
}

TEST_F(FullScreenHints, goAfterAFewSecondsAndLeaveNothingBehind) {
    const QImage before = grab();
    showHint();
    QTest::qWait(2000);
    EXPECT_TRUE(hintIsVisible());

    EXPECT_TRUE(QTest::qWaitFor([this] { return !hintExists(); }, longestStay));

    EXPECT_EQ(grab(), before);
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(FullScreenHints, wakeTheEventLoopOnlyWhileFading) {
    showHint();
    EXPECT_GT(wakeups(200), idleWakeups);
    waitForAnimations();

    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_F(FullScreenHints, doNotFadeUnderReducedMotion) {
    const StillStyle still;

    showHint();

    EXPECT_TRUE(animationsFinished());
    const QImage shown = grab().copy(rectOf<FullScreenHint>());
    QTest::qWait(300);
    EXPECT_EQ(grab().copy(rectOf<FullScreenHint>()), shown);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !hintExists(); }, longestStay));
}

TEST_F(FullScreenHints, goAtOnceWhenARunStarts) {
    showHint();

    Keyboard::press(window, Qt::Key_Space);

    ASSERT_TRUE(session.running());
    expectGone();
}

TEST_F(FullScreenHints, goAtOnceWhenASheetOpens) {
    showHint();

    Keyboard::press(window, Qt::Key_F1);

    expectGone();
}

TEST_F(FullScreenHints, goAtOnceWithFullScreen) {
    showHint();

    leaveFullScreen();

    expectGone();
}

TEST_F(FullScreenHints, letThePointerThrough) {
    showHint();

    EXPECT_NE(window.childAt(rectOf<FullScreenHint>().center()), &child<FullScreenHint>());
}

TEST_F(FullScreenHints, stayCentredInAnotherSize) {
    showHint();

    window.resize(1000, 800);
    processEvents();

    EXPECT_LE(std::abs(rectOf<FullScreenHint>().center().x() - window.rect().center().x()), 1);
}

TEST_F(FullScreenHints, areNotForAWindow) {
    leaveFullScreen();

    showHint();

    EXPECT_FALSE(hintExists());
}

TEST_F(FullScreenHints, areNotForWhoHasScored) {
    setBest(10);

    showHint();

    EXPECT_FALSE(hintExists());
}

TEST_F(FullScreenHints, areNotOverPlay) {
    startRun();

    showHint();

    EXPECT_FALSE(hintExists());
}

TEST_F(FullScreenHintsAfterPlay, areNotForWhoHasASavedScore) {
    showHint();

    EXPECT_FALSE(hintExists());
}
