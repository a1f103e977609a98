#include <QMenuBar>
#include <QTest>
#include <QWindow>
#include <array>

#include "Fernwick/Window/WindowTest.hpp"
#include "Window/WindowChrome.hpp"

namespace {

/// A grip at the rim of the window: which edges it moves, and where it lies as steps of -1, 0 or 1
/// from the middle.
struct Grip {
    Qt::Edges edges;
    QPoint side;
    Qt::CursorShape cursor;
};

const std::array grips{
    Grip{Qt::LeftEdge, {-1, 0}, Qt::SizeHorCursor},
    Grip{Qt::RightEdge, {1, 0}, Qt::SizeHorCursor},
    Grip{Qt::TopEdge, {0, -1}, Qt::SizeVerCursor},
    Grip{Qt::BottomEdge, {0, 1}, Qt::SizeVerCursor},
    Grip{Qt::LeftEdge | Qt::TopEdge, {-1, -1}, Qt::SizeFDiagCursor},
    Grip{Qt::RightEdge | Qt::BottomEdge, {1, 1}, Qt::SizeFDiagCursor},
    Grip{Qt::RightEdge | Qt::TopEdge, {1, -1}, Qt::SizeBDiagCursor},
    Grip{Qt::LeftEdge | Qt::BottomEdge, {-1, 1}, Qt::SizeBDiagCursor},
};

/// How a window without a title bar is taken hold of.
class Chrome : public WindowTest {
protected:
    Chrome() { leaveFullScreen(); }

    [[nodiscard]] WindowChrome& chrome() const { return *window.findChild<WindowChrome*>(); }

    /// A point on the rim, `inside` points from it.
    [[nodiscard]] QPoint pointOf(const Grip& grip, int inside) const {
        const QPoint middle = window.rect().center();
        const auto along = [inside](int side, int half, int last) {
            return side == 0 ? half : side < 0 ? inside : last - inside;
        };
        return {along(grip.side.x(), middle.x(), window.width() - 1),
                along(grip.side.y(), middle.y(), window.height() - 1)};
    }

    /// An empty place of the band, right of the menus.
    [[nodiscard]] QPoint emptyBand() const { return {window.width() / 2, 20}; }

    void doubleClick(const QPoint& place) {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, place);
        settle();
    }

    [[nodiscard]] bool staysAsItIs() {
        settle();
        return window.windowState() == Qt::WindowNoState;
    }
};

}  // namespace

TEST_F(Chrome, takesHoldOfTheRimAlone) {
    for (const Grip& grip : grips) {
        for (const int inside : {0, 5}) {
            EXPECT_EQ(chrome().edgesAt(pointOf(grip, inside)), grip.edges) << grip.side.x();
        }
        EXPECT_EQ(chrome().edgesAt(pointOf(grip, 6)), Qt::Edges());
    }
    EXPECT_EQ(chrome().edgesAt(window.rect().center()), Qt::Edges());
}

TEST_F(Chrome, hasNoGripsInFullScreenAndWhenMaximised) {
    window.showMaximized();
    settle();
    for (const Grip& grip : grips) {
        EXPECT_EQ(chrome().edgesAt(pointOf(grip, 0)), Qt::Edges());
    }
    window.showFullScreen();
    settle();
    for (const Grip& grip : grips) {
        EXPECT_EQ(chrome().edgesAt(pointOf(grip, 0)), Qt::Edges());
    }
}

TEST_F(Chrome, tellsByThePointerWhatAGripWouldDo) {
    for (const Grip& grip : grips) {
        QTest::mouseMove(window.windowHandle(), pointOf(grip, 2));
        settle();
        EXPECT_EQ(window.cursor().shape(), grip.cursor) << grip.side.x() << grip.side.y();
        QTest::mouseMove(window.windowHandle(), window.rect().center());
        settle();
        EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
    }
}

TEST_F(Chrome, maximisesByADoubleClickOnTheBandAndBack) {
    doubleClick(emptyBand());
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMaximized(); }));

    doubleClick(emptyBand());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isMaximized(); }));
}

TEST_F(Chrome, takesADoubleClickNowhereElse) {
    const auto& bar = *window.findChild<QMenuBar*>();
    doubleClick(bar.mapTo(&window, bar.rect().center()));
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(staysAsItIs());
    doubleClick({window.width() / 2, 60});
    EXPECT_TRUE(staysAsItIs());

    window.showFullScreen();
    waitForFullScreen(true);
    doubleClick(emptyBand());
    EXPECT_FALSE(window.isMaximized());
}

TEST_F(Chrome, leavesTheControlsInTheBandTheirClicks) {
    auto* maximise = button("Maximise");
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {},
                      maximise->mapTo(&window, maximise->rect().center()));
    EXPECT_TRUE(maximise->isDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, emptyBand());

    EXPECT_FALSE(maximise->isDown());
    EXPECT_TRUE(staysAsItIs());
}
