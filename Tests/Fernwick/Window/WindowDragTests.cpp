#include <QProcess>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <cstdlib>

#include "Fernwick/Window/WindowTest.hpp"

// Needs a real screen with a window manager and a pointer of its own.

namespace {

constexpr int dragSteps = 10;
// What a hand takes from one place to the next, in milliseconds.
constexpr int handPause = 60;
// A drag begins only once the pointer has gone some way.
constexpr int slack = 16;

class Drag : public WindowTest {
protected:
    Drag() {
        leaveFullScreen();
        // With room on every side.
        window.move(300, 100);
        EXPECT_TRUE(atRest());
    }

    static void hand(const QStringList& doing) {
        ASSERT_EQ(QProcess::execute(QStringLiteral("xdotool"), doing), 0);
        settle();
    }

    static void pointAt(const QPoint& place) {
        hand({"mousemove", QString::number(place.x()), QString::number(place.y())});
    }

    /// Holds the left button down over a way that begins at `begin`, in points of the window.
    void drag(const QPoint& begin, const QPoint& by) {
        const QPoint from = window.mapToGlobal(begin);
        pointAt(from);
        hand({"mousedown", "1"});
        for (int step = 1; step <= dragSteps; ++step) {
            pointAt(from + by * step / dragSteps);
            // The window manager takes hold where it is told of the drag.
            QTest::qWait(handPause);
        }
        // A window hears where it has been moved to only when it is let go.
        hand({"mouseup", "1"});
    }

    /// Waits until the window manager has done with the window.
    [[nodiscard]] bool atRest() {
        QRect before;
        return QTest::qWaitFor([this, &before] {
            const QRect now = window.geometry();
            const bool still = now == before;
            before = now;
            QTest::qWait(50);
            return still;
        });
    }

    /// Whether the window comes to stand within the slack of `wanted`.
    [[nodiscard]] bool comesTo(const QRect& wanted) const {
        return QTest::qWaitFor([this, wanted] {
            const QRect now = window.geometry();
            const QMargins off(now.left() - wanted.left(), now.top() - wanted.top(),
                               now.right() - wanted.right(), now.bottom() - wanted.bottom());
            return std::abs(off.left()) <= slack && std::abs(off.top()) <= slack &&
                   std::abs(off.right()) <= slack && std::abs(off.bottom()) <= slack;
        });
    }

    [[nodiscard]] std::string place() const {
        const QRect now = window.geometry();
        return QStringLiteral("%1,%2 %3x%4")
            .arg(now.x())
            .arg(now.y())
            .arg(now.width())
            .arg(now.height())
            .toStdString();
    }

    static constexpr QPoint way{60, 45};
};

/// Which sides move with the pointer, as -1, 0 and 1.
class DragAnEdge : public Drag, public ::testing::WithParamInterface<QPoint> {};

INSTANTIATE_TEST_SUITE_P(Of, DragAnEdge,
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

TEST_F(Drag, byTheBandMovesTheWindow) {
    const QRect before = window.geometry();
    drag({window.width() / 2, 20}, way);

    EXPECT_TRUE(comesTo(before.translated(way))) << place();
}

TEST_F(Drag, belowTheBandMovesNothing) {
    const QRect before = window.geometry();
    drag({window.width() / 2, 60}, way);

    EXPECT_TRUE(atRest());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(Drag, movesNothingInFullScreen) {
    window.showFullScreen();
    waitForFullScreen(true);
    const QRect before = window.geometry();
    drag({window.width() / 2, 20}, way);

    EXPECT_TRUE(atRest());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(Drag, aMereClickHoldsNothing) {
    const QRect before = window.geometry();
    const QPoint band = window.mapToGlobal(QPoint(window.width() / 2, 20));
    pointAt(band);
    hand({"click", "1"});
    for (int step = 1; step <= dragSteps; ++step) {
        pointAt(band + way * step / dragSteps);
    }

    EXPECT_TRUE(atRest());
    EXPECT_EQ(window.geometry(), before);
}

TEST_F(Drag, stopsAtTheSmallestWindow) {
    drag({window.width() - 3, window.height() - 3}, {-400, -400});

    EXPECT_TRUE(QTest::qWaitFor([this] { return window.size() == QSize(820, 760); })) << place();
    EXPECT_TRUE(atRest());
    EXPECT_EQ(window.size(), QSize(820, 760));
}

TEST_P(DragAnEdge, movesThatEdgeAlone) {
    const QPoint side = GetParam();
    const QRect before = window.geometry();
    const auto along = [](int at, int length) {
        return at == 0 ? length / 2 : at < 0 ? 2 : length - 3;
    };
    const QPoint outwards(side.x() * way.x(), side.y() * way.y());
    drag({along(side.x(), window.width()), along(side.y(), window.height())}, outwards);

    const QRect wanted = before.adjusted(std::min(outwards.x(), 0), std::min(outwards.y(), 0),
                                         std::max(outwards.x(), 0), std::max(outwards.y(), 0));
    EXPECT_TRUE(comesTo(wanted)) << place();
}
