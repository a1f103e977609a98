#include <QProcess>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <cstdlib>

#include "Fernwick/Window/WindowTest.hpp"
#include "Support/Look.hpp"

// Runs on an X server with a window manager; xdotool moves the pointer.

namespace {

constexpr int dragSteps = 10;
// Between two steps of a drag, in milliseconds.
constexpr int stepPause = 60;
// How far the window may end up from where it is dragged to: a drag starts only after the pointer
// has moved some points.
constexpr int tolerance = 16;

class WindowDrag : public WindowTest {
protected:
    WindowDrag() {
        leaveFullScreen();
        // Leaves room on every side.
        window.move(300, 100);
        EXPECT_TRUE(stopsMoving());
    }

    static void xdotool(const QStringList& arguments) {
        ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
        processEvents();
    }

    static void movePointer(const QPoint& position) {
        xdotool({"mousemove", QString::number(position.x()), QString::number(position.y())});
    }

    /// Drags with the left button from `start`, in window coordinates, by `offset`.
    void drag(const QPoint& start, const QPoint& offset) {
        const QPoint from = window.mapToGlobal(start);
        movePointer(from);
        xdotool({"mousedown", "1"});
        for (int step = 1; step <= dragSteps; ++step) {
            movePointer(from + offset * step / dragSteps);
            // Gives the window manager time to take over the drag.
            QTest::qWait(stepPause);
        }
        // The window gets its new position only when the button is released.
        xdotool({"mouseup", "1"});
    }

    /// Waits until the geometry of the window has been constant for 50 ms.
    [[nodiscard]] bool stopsMoving() {
        QRect before;
        return QTest::qWaitFor([this, &before] {
            const QRect now = window.geometry();
            const bool still = now == before;
            before = now;
            QTest::qWait(50);
            return still;
        });
    }

    /// Waits until the geometry of the window is within the tolerance of `wanted`.
    [[nodiscard]] bool reaches(const QRect& wanted) const {
        return QTest::qWaitFor([this, wanted] {
            const QRect now = window.geometry();
            const QMargins off(now.left() - wanted.left(), now.top() - wanted.top(),
                               now.right() - wanted.right(), now.bottom() - wanted.bottom());
            return std::abs(off.left()) <= tolerance && std::abs(off.top()) <= tolerance &&
                   std::abs(off.right()) <= tolerance && std::abs(off.bottom()) <= tolerance;
        });
    }

    static constexpr QPoint distance{60, 45};
};

/// The parameter is the edge that is dragged: -1, 0 or 1 horizontally and vertically.
class EdgeDrag : public WindowDrag, public ::testing::WithParamInterface<QPoint> {};

INSTANTIATE_TEST_SUITE_P(Of, EdgeDrag,
                         ::testing::Values(QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1),
                                           QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1),
                                           QPoint(1, 1)),
                         [](const auto& side) {
                             const QPoint at = side.param;
                             const std::string across = at.x() < 0   ? "Left"
                                                        : at.x() > 0 ? "Right"
                                                                     : "";
                             return (at.y() < 0 ? "Top" : at.y() > 0 ? "Bottom" : "") + across;
                         });

}  // namespace

TEST_F(WindowDrag, onTheTitleBandMovesTheWindow) {
    const QRect before = window.geometry();
    drag({window.width() / 2, 20}, distance);

    EXPECT_TRUE(reaches(before.translated(distance)))
        << ::testing::PrintToString(window.geometry());
}

TEST_F(WindowDrag, belowTheTitleBandDoesNotMoveTheWindow) {
    const QRect before = window.geometry();
    drag({window.width() / 2, 60}, distance);

    EXPECT_TRUE(stopsMoving());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(WindowDrag, doesNotMoveAFullScreenWindow) {
    window.showFullScreen();
    waitForFullScreen(true);
    const QRect before = window.geometry();
    drag({window.width() / 2, 20}, distance);

    EXPECT_TRUE(stopsMoving());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(WindowDrag, doesNotStartFromAClick) {
    const QRect before = window.geometry();
    const QPoint band = window.mapToGlobal(QPoint(window.width() / 2, 20));
    movePointer(band);
    xdotool({"click", "1"});
    for (int step = 1; step <= dragSteps; ++step) {
        movePointer(band + distance * step / dragSteps);
    }

    EXPECT_TRUE(stopsMoving());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(WindowDrag, stopsAtTheMinimumSize) {
    drag({window.width() - 3, window.height() - 3}, {-400, -400});

    EXPECT_TRUE(QTest::qWaitFor([this] { return window.size() == QSize(820, 760); }))
        << ::testing::PrintToString(window.geometry());
    EXPECT_TRUE(stopsMoving());
    EXPECT_EQ(window.size(), QSize(820, 760));
}

TEST_P(EdgeDrag, movesOnlyThatEdge) {
    const QPoint side = GetParam();
    const QRect before = window.geometry();
    const auto along = [](int at, int length) {
        return at == 0 ? length / 2 : at < 0 ? 2 : length - 3;
    };
    const QPoint outwards(side.x() * distance.x(), side.y() * distance.y());
    drag({along(side.x(), window.width()), along(side.y(), window.height())}, outwards);

    const QRect wanted = before.adjusted(std::min(outwards.x(), 0), std::min(outwards.y(), 0),
                                         std::max(outwards.x(), 0), std::max(outwards.y(), 0));
    EXPECT_TRUE(reaches(wanted)) << ::testing::PrintToString(window.geometry());
}
