#include <QScreen>

#include "Fernwick/Window/WindowTest.hpp"
#include "Window/FullScreen.hpp"

namespace {

/// At scale 2 the screen is lower than the window's minimum size.
class BoundedWindow : public WindowTest {
protected:
    void toggle() {
        const bool fullScreen = window.isFullScreen();
        toggleFullScreen();
        waitForFullScreen(!fullScreen);
    }

    [[nodiscard]] QRect room() const { return window.screen()->availableGeometry(); }

    [[nodiscard]] bool isOnlyMaximized() const {
        return window.isMaximized() && !window.isFullScreen();
    }

    [[nodiscard]] bool isWhole() {
        return QTest::qWaitFor([this] { return room().contains(window.geometry()); });
    }
};

}  // namespace

TEST_F(BoundedWindow, hasItsDefaultSizeAsFarAsTheScreenHasRoom) {
    toggle();

    EXPECT_TRUE(isWhole());
    EXPECT_EQ(window.size(), QSize(940, 860).boundedTo(room().size()));
}

TEST_F(BoundedWindow, isInTheMiddleOfTheScreenAfterFullScreen) {
    toggle();

    EXPECT_TRUE(QTest::qWaitFor([this] {
        const QPoint off = window.geometry().center() - room().center();
        return off.manhattanLength() <= 2;
    })) << ::testing::PrintToString(window.geometry());
}

TEST_F(BoundedWindow, hasItsMinimumSizeAsFarAsTheScreenHasRoom) {
    EXPECT_EQ(window.minimumSize(), QSize(820, 760).boundedTo(room().size()));
    toggle();
    EXPECT_EQ(window.minimumSize(), QSize(820, 760).boundedTo(room().size()));
}

TEST_F(BoundedWindow, isMaximisedAgainAfterFullScreen) {
    toggle();
    const QRect before = window.geometry();
    window.showMaximized();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window.isMaximized(); }));

    toggle();
    toggleFullScreen();

    EXPECT_TRUE(QTest::qWaitFor([this] { return isOnlyMaximized(); }));
    // The window manager may still change the state.
    QTest::qWait(300);
    EXPECT_TRUE(isOnlyMaximized());

    window.showNormal();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() == before; }))
        << ::testing::PrintToString(window.geometry());
}

TEST_F(BoundedWindow, isNotMaximisedAfterFullScreenIfItWasNotBefore) {
    toggle();
    const QRect before = window.geometry();

    toggle();
    toggle();

    EXPECT_FALSE(window.isMaximized());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.geometry() == before; }));
}

TEST_F(BoundedWindow, isWholeAfterFullScreenEvenIfItWasLargerThanTheScreenBefore) {
    toggle();
    window.setGeometry(QRect(room().topLeft() - QPoint(30, 30), room().size() + QSize(200, 200)));
    processEvents();
    toggle();

    toggle();

    EXPECT_TRUE(isWhole()) << ::testing::PrintToString(window.geometry());
}
