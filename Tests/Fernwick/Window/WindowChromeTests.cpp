#include <QMenuBar>
#include <QTest>
#include <QWindow>
#include <array>

#include "Fernwick/Window/WindowTest.hpp"
#include "Window/WindowChrome.hpp"

namespace {

/// A resizable edge or corner of the window. `side` is its direction from the centre: -1, 0 or 1
/// horizontally and vertically.
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

class Chrome : public WindowTest {
protected:
    Chrome() { leaveFullScreen(); }

    /// A point `inset` points inside the border.
    [[nodiscard]] QPoint pointOf(const Grip& grip, int inset) const {
        const QPoint middle = window.rect().center();
        const auto along = [inset](int side, int half, int last) {
            return side == 0 ? half : side < 0 ? inset : last - inset;
        };
        return {along(grip.side.x(), middle.x(), window.width() - 1),
                along(grip.side.y(), middle.y(), window.height() - 1)};
    }

    /// A point of the title band to the right of the menus.
    [[nodiscard]] QPoint emptyBand() const { return {window.width() / 2, 20}; }

    void doubleClick(const QPoint& position) {
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, position);
        processEvents();
    }

    [[nodiscard]] bool staysNormal() {
        processEvents();
        return window.windowState() == Qt::WindowNoState;
    }
};

}  // namespace

TEST_F(Chrome, reportsResizeEdgesOnlyAtTheBorder) {
    for (const Grip& grip : grips) {
        for (const int inset : {0, 5}) {
            EXPECT_EQ(child<WindowChrome>().edgesAt(pointOf(grip, inset)), grip.edges)
                << grip.side.x();
        }
        EXPECT_EQ(child<WindowChrome>().edgesAt(pointOf(grip, 6)), Qt::Edges());
    }
    EXPECT_EQ(child<WindowChrome>().edgesAt(window.rect().center()), Qt::Edges());
}

TEST_F(Chrome, reportsNoResizeEdgesInFullScreenOrMaximised) {
    window.showMaximized();
    processEvents();
    for (const Grip& grip : grips) {
        EXPECT_EQ(child<WindowChrome>().edgesAt(pointOf(grip, 0)), Qt::Edges());
    }
    window.showFullScreen();
    processEvents();
    for (const Grip& grip : grips) {
        EXPECT_EQ(child<WindowChrome>().edgesAt(pointOf(grip, 0)), Qt::Edges());
    }
}

TEST_F(Chrome, showsAResizeCursorAtEachEdge) {
    for (const Grip& grip : grips) {
        QTest::mouseMove(window.windowHandle(), pointOf(grip, 2));
        processEvents();
        EXPECT_EQ(window.cursor().shape(), grip.cursor) << grip.side.x() << grip.side.y();
        QTest::mouseMove(window.windowHandle(), window.rect().center());
        processEvents();
        EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
    }
}

TEST_F(Chrome, doubleClickOnTheTitleBandMaximisesAndRestores) {
    doubleClick(emptyBand());
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMaximized(); }));

    doubleClick(emptyBand());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isMaximized(); }));
}

TEST_F(Chrome, doubleClickBesideTheLastMenuMaximises) {
    const auto& bar = child<QMenuBar>();
    const QRect last = bar.actionGeometry(bar.actions().constLast());
    doubleClick(bar.mapTo(&window, QPoint(last.right() + 30, last.center().y())));

    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMaximized(); }));
}

TEST_F(Chrome, doubleClickElsewhereDoesNothing) {
    const auto& bar = child<QMenuBar>();
    doubleClick(bar.mapTo(&window, bar.actionGeometry(bar.actions().constFirst()).center()));
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(staysNormal());
    doubleClick({window.width() / 2, 60});
    EXPECT_TRUE(staysNormal());

    window.showFullScreen();
    waitForFullScreen(true);
    doubleClick(emptyBand());
    EXPECT_FALSE(window.isMaximized());
}

TEST_F(Chrome, titleBandButtonsReceiveTheirClicks) {
    auto* maximise = button("Maximise");
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {},
                      maximise->mapTo(&window, maximise->rect().center()));
    EXPECT_TRUE(maximise->isDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, emptyBand());

    EXPECT_FALSE(maximise->isDown());
    EXPECT_TRUE(staysNormal());
}
