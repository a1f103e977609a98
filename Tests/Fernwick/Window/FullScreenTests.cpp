#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <memory>
#include <vector>

#include "Fernwick/Window/WindowTest.hpp"
#include "Window/FullScreen.hpp"
#include "Window/LaunchView.hpp"

TEST(LaunchView, takesItsWindowToFullScreenOnTheTurnAfterItIsShown) {
    QWidget window;
    new LaunchView(&window);

    window.show();
    EXPECT_FALSE(window.isFullScreen());
    QCoreApplication::processEvents();

    EXPECT_TRUE(window.isFullScreen());
}

TEST(LaunchView, leavesAWindowThatIsInFullScreenAlready) {
    QWidget window;
    new LaunchView(&window);

    window.showFullScreen();
    QCoreApplication::processEvents();

    EXPECT_TRUE(window.isFullScreen());
}

TEST(LaunchView, forgetsAWindowThatIsGoneByThen) {
    auto window = std::make_unique<QWidget>();
    new LaunchView(window.get());
    window->show();

    window.reset();
    QCoreApplication::processEvents();

    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(LaunchView, asksOnlyOnceEvenWhenMovedOrShownAgain) {
    QWidget window;
    QWidget other;
    auto* view = new LaunchView(&window);
    window.show();
    QCoreApplication::processEvents();
    window.showNormal();

    view->setParent(&other);
    other.show();
    view->show();
    QCoreApplication::processEvents();
    window.hide();
    window.show();
    QCoreApplication::processEvents();

    EXPECT_FALSE(window.isFullScreen());
    EXPECT_FALSE(other.isFullScreen());
}

TEST(LaunchView, doesNotFightAPlayerWhoLeavesFullScreen) {
    QWidget window;
    new LaunchView(&window);
    window.show();
    QCoreApplication::processEvents();

    window.showNormal();
    QCoreApplication::processEvents();

    EXPECT_FALSE(window.isFullScreen());
}

namespace {

/// A window that remembers at which sizes it was painted.
class PaintedWindow : public QWidget {
public:
    std::vector<QSize> sizes;

protected:
    void paintEvent(QPaintEvent*) override { sizes.push_back(size()); }
};

}  // namespace

TEST(LaunchView, hasItsWindowPaintedInFullScreenOnly) {
    PaintedWindow window;
    window.resize(300, 200);
    new LaunchView(&window);

    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.sizes.empty(); }));

    EXPECT_EQ(window.sizes.front(), window.screen()->size());
}

TEST(LaunchView, hasItsWindowPaintedAlsoWhenTheDesktopGivesItNoNewSize) {
    PaintedWindow window;
    window.setFixedSize(window.screen()->size());
    new LaunchView(&window);

    window.show();

    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.sizes.empty(); }));
}

TEST(ToggleFullScreen, doesNothingWithoutAWindow) {
    toggleFullScreen();

    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(ToggleFullScreen, passesOverAMinimisedWindow) {
    QWidget window;
    window.showMinimized();
    QCoreApplication::processEvents();

    toggleFullScreen();

    EXPECT_FALSE(window.isFullScreen());
}

namespace {

class Window : public WindowTest {};

}  // namespace

TEST_F(Window, isCalledFernwickAndHasNoTitleBar) {
    EXPECT_EQ(window.windowTitle(), "Fernwick");
    EXPECT_EQ(window.objectName(), "main");
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(Window, hasItsDefaultSizeOutsideFullScreen) {
    EXPECT_TRUE(window.isFullScreen());

    toggleFullScreen();
    settle();

    EXPECT_EQ(window.size(), QSize(940, 860));
}

TEST_F(Window, refusesToShrinkBelowItsMinimum) {
    toggleFullScreen();
    settle();

    window.resize(300, 200);

    EXPECT_EQ(window.minimumSize(), QSize(820, 760));
    EXPECT_EQ(window.size(), QSize(820, 760));
}

TEST_F(Window, staysOutOfFullScreenThroughARestart) {
    toggleFullScreen();
    settle();

    startRun();
    endRun();
    session.skipSaving();
    startRun();

    EXPECT_FALSE(window.isFullScreen());
}
