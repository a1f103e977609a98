#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "Fernwick/Window/WindowTest.hpp"
#include "Garden/Widgets/Sheet.hpp"
#include "Screens/Main/Board.hpp"
#include "Screens/Main/ContentView.hpp"
#include "Screens/Scores/GameOverView.hpp"
#include "Support/LogCapture.hpp"
#include "Window/FullScreen.hpp"
#include "Window/LaunchView.hpp"
#include "Window/TitleBand.hpp"
#include "Window/WindowFrame.hpp"

TEST(LaunchView, makesItsWindowFullScreenInTheNextEventLoopIteration) {
    QWidget window;
    new LaunchView(&window);

    const LogCapture log("fernwick.window");

    window.show();
    EXPECT_FALSE(window.isFullScreen());
    QCoreApplication::processEvents();

    EXPECT_TRUE(window.isFullScreen());
    EXPECT_TRUE(log.contains("requesting full screen"));
}

TEST(LaunchView, leavesAFullScreenWindowAlone) {
    QWidget window;
    new LaunchView(&window);

    const LogCapture log("fernwick.window");

    window.showFullScreen();
    QCoreApplication::processEvents();

    EXPECT_TRUE(window.isFullScreen());
    EXPECT_FALSE(log.contains("requesting full screen"));
    EXPECT_TRUE(window.updatesEnabled());
}

TEST(LaunchView, doesNothingIfTheWindowIsDestroyedFirst) {
    auto window = std::make_unique<QWidget>();
    new LaunchView(window.get());
    window->show();

    window.reset();
    QCoreApplication::processEvents();

    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(LaunchView, requestsFullScreenOnlyOnceEvenIfReparentedOrShownAgain) {
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

TEST(LaunchView, doesNotReenterFullScreenAfterThePlayerLeavesIt) {
    QWidget window;
    new LaunchView(&window);
    window.show();
    QCoreApplication::processEvents();

    window.showNormal();
    QCoreApplication::processEvents();

    EXPECT_FALSE(window.isFullScreen());
}

namespace {

/// Records the window size at every paint event.
class PaintedWindow : public QWidget {
public:
    std::vector<QSize> sizes;

protected:
    void paintEvent(QPaintEvent*) override { sizes.push_back(size()); }
};

}  // namespace

TEST(LaunchView, delaysPaintingUntilTheWindowIsFullScreen) {
    PaintedWindow window;
    window.resize(300, 200);
    new LaunchView(&window);

    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.sizes.empty(); }));

    EXPECT_EQ(window.sizes.front(), window.screen()->size());
}

TEST(LaunchView, stopsPaintingAsSoonAsTheWindowIsShown) {
    QWidget window;
    new LaunchView(&window);

    window.show();

    EXPECT_FALSE(window.updatesEnabled());
}

TEST(LaunchView, announcesTheSizeOfFullScreenAfterItHasRequestedThat) {
    QWidget window;
    window.resize(300, 200);
    auto* view = new LaunchView(&window);
    QSize announced;
    bool requested = false;
    QObject::connect(view, &LaunchView::waiting, [&](const QSize& size) {
        announced = size;
        requested = window.isFullScreen();
    });

    window.show();
    EXPECT_FALSE(announced.isValid());
    QCoreApplication::processEvents();

    EXPECT_EQ(announced, window.screen()->size());
    EXPECT_TRUE(requested);
}

TEST(LaunchView, doesNotDelayPaintingIfTheWindowIsAsLargeAsTheScreen) {
    QWidget window;
    window.resize(window.screen()->size());
    new LaunchView(&window);

    window.show();
    QCoreApplication::processEvents();

    EXPECT_TRUE(window.isFullScreen());
    EXPECT_TRUE(window.updatesEnabled());
}

TEST(LaunchView, paintsEvenIfTheWindowIsNotResized) {
    // Gets no resize event: it is hidden from the event filter that was installed last.
    struct IgnoreResize : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            return event->type() == QEvent::Resize;
        }
    } ignoreResize;
    PaintedWindow window;
    window.resize(300, 200);
    auto* view = new LaunchView(&window);
    const LogCapture log("fernwick.window");
    bool sizeKept = false;
    QObject::connect(view, &LaunchView::sizeKept, [&] { sizeKept = window.sizes.empty(); });

    window.show();
    QCoreApplication::sendPostedEvents();
    window.installEventFilter(&ignoreResize);

    EXPECT_TRUE(QTest::qWaitFor([&window] { return !window.sizes.empty(); }));
    EXPECT_TRUE(sizeKept);
    EXPECT_TRUE(log.contains("no full-screen size"));
}

TEST(ToggleFullScreen, doesNothingWithoutAWindow) {
    toggleFullScreen();

    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(ToggleFullScreen, ignoresAHiddenWindow) {
    const QWidget hidden;

    toggleFullScreen();

    EXPECT_FALSE(hidden.isFullScreen());
}

TEST(ToggleFullScreen, ignoresADialog) {
    QWidget dialog(nullptr, Qt::Dialog);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));

    toggleFullScreen();

    EXPECT_FALSE(dialog.isFullScreen());
}

TEST(ToggleFullScreen, choosesTheVisibleWindowIfADialogIsActive) {
    const std::array<QWidget, 8> hidden;
    QWidget window;
    window.show();
    QWidget dialog(nullptr, Qt::Dialog);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));

    toggleFullScreen();

    EXPECT_TRUE(window.isFullScreen());
    EXPECT_FALSE(dialog.isFullScreen());
    EXPECT_TRUE(std::ranges::none_of(hidden, &QWidget::isFullScreen));
}

TEST(ToggleFullScreen, ignoresAMinimisedWindow) {
    QWidget window;
    window.showMinimized();
    QCoreApplication::processEvents();

    toggleFullScreen();

    EXPECT_FALSE(window.isFullScreen());
}

namespace {

class Window : public WindowTest {};
class NewWindow : public SessionTest {};

}  // namespace

TEST_F(NewWindow, isShownBeforeItsContentIsMadeForFullScreen) {
    GameWindow window(session);

    window.show();
    EXPECT_EQ(window.findChild<ContentView*>(), nullptr);
    QCoreApplication::sendPostedEvents();

    const auto* content = window.findChild<ContentView*>();
    ASSERT_NE(content, nullptr);
    EXPECT_TRUE(content->isVisible());
    EXPECT_EQ(content->geometry(), QRect(QPoint(), window.screen()->size()));
    EXPECT_TRUE(window.hasFocus() || window.focusWidget() == &window);
}

TEST_F(NewWindow, hasItsIconAfterTheFirstFrame) {
    GameWindow window(session);
    bool hasAppeared = false;
    QObject::connect(&window, &GameWindow::appeared, [&] { hasAppeared = true; });

    window.show();
    while (!hasAppeared) {
        ASSERT_TRUE(window.windowIcon().isNull());
        QCoreApplication::processEvents();
    }

    EXPECT_FALSE(window.windowIcon().isNull());
}

TEST_F(NewWindow, makesTheCardOfAnEndedRunAndTheSheetsWhenTheyAreFirstShown) {
    GameWindow window(session);
    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.findChild<Board*>() != nullptr; }));

    EXPECT_EQ(window.findChild<GameOverView*>(), nullptr);
    EXPECT_TRUE(window.findChildren<Garden::Sheet*>().isEmpty());
    EXPECT_FALSE(window.findChild<Board*>()->hasSharpPicture());

    session.openScores();
    EXPECT_EQ(window.findChildren<Garden::Sheet*>().size(), 1);
}

TEST_F(NewWindow, canBeClosedBeforeItsFirstFrame) {
    for (int run = 0; run < 10; ++run) {
        GameWindow window(session);
        window.show();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        EXPECT_NE(window.findChild<ContentView*>(), nullptr);
    }
}

TEST_F(NewWindow, hasTheBandAboveTheContentAndTheFrameAboveBoth) {
    GameWindow window(session);
    window.show();
    QCoreApplication::processEvents();

    const QObjectList& fromBelow = window.children();
    const auto place = [&](QObject* child) { return fromBelow.indexOf(child); };

    EXPECT_LT(place(window.findChild<ContentView*>()), place(window.findChild<TitleBand*>()));
    EXPECT_LT(place(window.findChild<TitleBand*>()), place(window.findChild<WindowFrame*>()));
}

TEST_F(Window, isTitledFernwickAndFrameless) {
    EXPECT_EQ(window.windowTitle(), "Fernwick");
    EXPECT_EQ(window.objectName(), "main");
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(Window, hasItsDefaultSizeOutsideFullScreen) {
    EXPECT_TRUE(window.isFullScreen());

    toggleFullScreen();
    processEvents();

    EXPECT_EQ(window.size(), QSize(940, 860));
}

TEST_F(Window, cannotShrinkBelowItsMinimumSize) {
    toggleFullScreen();
    processEvents();

    window.resize(300, 200);

    EXPECT_EQ(window.minimumSize(), QSize(820, 760));
    EXPECT_EQ(window.size(), QSize(820, 760));
}

TEST_F(Window, staysOutOfFullScreenWhenANewRunStarts) {
    toggleFullScreen();
    processEvents();

    startRun();
    endRun();
    session.skipSaving();
    startRun();

    EXPECT_FALSE(window.isFullScreen());
}

TEST_F(NewWindow, paintsItsContentOnceAtTheStart) {
    struct CountPaints : QObject {
        bool eventFilter(QObject* watched, QEvent* event) override {
            const bool isContent = qobject_cast<ContentView*>(watched) != nullptr;
            count += isContent && event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    } paints;
    qApp->installEventFilter(&paints);
    GameWindow window(session);

    window.show();
    EXPECT_TRUE(QTest::qWaitFor([&paints] { return paints.count > 0; }));
    QTest::qWait(50);

    EXPECT_EQ(paints.count, 1);
}
