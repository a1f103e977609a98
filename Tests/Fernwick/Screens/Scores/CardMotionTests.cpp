#include <QTest>
#include <QVariantAnimation>
#include <QWindow>

#include "Fernwick/Window/WindowTest.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Screens/Scores/NameField.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"

namespace {

/// How the card over an ended run appears.
class CardMotion : public WindowTest {
protected:
    [[nodiscard]] QVariantAnimation& motion() const {
        return *child<GameOverView>().findChild<QVariantAnimation*>({}, Qt::FindDirectChildrenOnly);
    }

    [[nodiscard]] bool isFading() const {
        const auto parts =
            child<GameOverView>().findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        return std::ranges::any_of(
            parts, [](const QWidget* part) { return part->graphicsEffect() != nullptr; });
    }

    /// Ends a run and stops the fade at this share of its duration.
    void endRunAndStopAt(double share) {
        playToNameEntry();
        ASSERT_EQ(motion().state(), QAbstractAnimation::Running);
        motion().pause();
        motion().setCurrentTime(qRound(motion().duration() * share));
    }

    /// The brightest green of the headline, and that of the board beside the card.
    [[nodiscard]] std::pair<int, int> seen() {
        const QImage picture = grab();
        const QRect headline = rectOf(*Screen::find<QWidget>(window, "Game over."));
        const QRect board = rectOf<Board>();
        return {brightest(picture, headline),
                brightest(picture, QRect(board.topLeft() + QPoint(40, 40), QSize(30, 30)))};
    }

    static int brightest(const QImage& picture, const QRect& area) {
        int found = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                found = std::max(found, picture.pixelColor(x, y).green());
            }
        }
        return found;
    }
};

}  // namespace

TEST_F(CardMotion, fadesInAsTheBoardDarkens) {
    endRunAndStopAt(0);
    const auto [noHeadline, brightBoard] = seen();
    motion().setCurrentTime(motion().duration() / 3);
    const auto [faintHeadline, dimmerBoard] = seen();
    motion().resume();
    waitForAnimations();
    const auto [headline, darkBoard] = seen();

    EXPECT_EQ(motion().duration(), 150);
    EXPECT_LT(noHeadline, faintHeadline);
    EXPECT_LT(faintHeadline, headline);
    EXPECT_GT(brightBoard, dimmerBoard);
    EXPECT_GT(dimmerBoard, darkBoard);
}

TEST_F(CardMotion, delaysNoKey) {
    endRunAndStopAt(0);

    QTest::keyClick(window.windowHandle(), Qt::Key_X);
    EXPECT_EQ(session.playerName(), QStringLiteral("x"));
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    EXPECT_TRUE(session.savedRun());
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(session.running());
}

TEST_F(CardMotion, keepsItsProgressWhileANameIsTyped) {
    endRunAndStopAt(0.3);
    const int before = seen().second;

    QTest::keyClick(window.windowHandle(), Qt::Key_X);

    EXPECT_EQ(seen().second, before);
}

TEST_F(CardMotion, endsWithTheCard) {
    endRunAndStopAt(0.3);
    motion().resume();
    EXPECT_TRUE(isFading());

    session.skipSaving();
    startRun();

    EXPECT_EQ(motion().state(), QAbstractAnimation::Stopped);
    EXPECT_FALSE(isFading());
}

TEST_F(CardMotion, wakesTheEventLoopOnlyWhileAnimating) {
    playToNameEntry();
    EXPECT_GT(wakeups(100), idleWakeups);
    waitForAnimations();

    EXPECT_LE(wakeups(200), idleWakeups);
    EXPECT_FALSE(isFading());
}

TEST_F(CardMotion, isSkippedUnderReducedMotion) {
    const StillStyle still;
    playToNameEntry();

    EXPECT_EQ(motion().state(), QAbstractAnimation::Stopped);
    const auto before = seen();
    QTest::qWait(200);
    EXPECT_EQ(seen(), before);
}
