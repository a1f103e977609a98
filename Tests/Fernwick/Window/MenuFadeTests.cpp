#include <QGraphicsOpacityEffect>
#include <QTest>

#include "Fernwick/Window/MenuKeysTest.hpp"
#include "Garden/Look/Motion.hpp"
#include "Support/Look.hpp"
#include "Support/StillStyle.hpp"
#include "Support/Wakeups.hpp"
#include "Window/ClosedMenu.hpp"

namespace {

class FadingMenus : public MenuKeysTest {
protected:
    [[nodiscard]] static double opacityOf(const QMenu& menu) {
        const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(menu.graphicsEffect());
        return effect == nullptr ? 1 : effect->opacity();
    }

    [[nodiscard]] ClosedMenu* closedMenu() const { return window.findChild<ClosedMenu*>(); }

    /// Opens the first menu and waits until it has faded in.
    QMenu& openFully() {
        press(firstMenu);
        QMenu& menu = *openMenu();
        EXPECT_TRUE(QTest::qWaitFor([&menu] { return opacityOf(menu) == 1; }));
        waitForAnimations();
        return menu;
    }
};

INSTANTIATE_TEST_SUITE_P(In, FadingMenus, ::testing::Bool(), menuKeysName);

}  // namespace

TEST_P(FadingMenus, appearWithRisingOpacity) {
    press(firstMenu);
    const QMenu& menu = *openMenu();
    std::vector<double> opacities{opacityOf(menu)};
    while (opacities.back() < 1) {
        QTest::qWait(10);
        opacities.push_back(opacityOf(menu));
    }

    EXPECT_LT(opacities.front(), 0.3);
    EXPECT_GT(opacities.size(), 4);
    EXPECT_TRUE(std::ranges::is_sorted(opacities));
    waitForAnimations();
    EXPECT_EQ(menu.graphicsEffect(), nullptr);
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_P(FadingMenus, leaveAPictureInTheirPlaceThatFadesOut) {
    QMenu& menu = openFully();
    const QImage open = menu.grab().toImage();
    const QRect place(window.mapFromGlobal(menu.pos()), menu.size());
    menu.close();

    ASSERT_NE(closedMenu(), nullptr);
    EXPECT_EQ(closedMenu()->geometry(), place);
    const QPointF centre(place.width() / 2, 4);
    EXPECT_LE(Look::distance(Look::colourAt(grab(), place.topLeft() + centre),
                             Look::colourAt(open, centre)),
              3);

    EXPECT_TRUE(QTest::qWaitFor([this] { return closedMenu() == nullptr; }));
    EXPECT_LE(wakeups(200), idleWakeups);
}

TEST_P(FadingMenus, takeNoLongerThan150Milliseconds) {
    EXPECT_LE(Garden::menuDuration, 150);
}

TEST_P(FadingMenus, areClosedForTheMouseAtOnce) {
    QMenu& menu = openFully();
    const QPoint inside = window.mapFromGlobal(menu.pos()) + menu.rect().center();
    menu.close();

    ASSERT_NE(closedMenu(), nullptr);
    EXPECT_NE(window.childAt(inside), closedMenu());
}

TEST_P(FadingMenus, areClosedForScreenReadersAtOnce) {
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&window);
    QMenu& menu = openFully();
    const int before = accessible->childCount();
    menu.close();

    ASSERT_NE(closedMenu(), nullptr);
    EXPECT_EQ(accessible->childCount(), before);
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&menu)->state().invisible);
}

TEST_P(FadingMenus, doNotFadeFromOneToTheNext) {
    QMenu& first = openFully();
    press(Qt::Key_Right);

    ASSERT_NE(openMenu(), &first);
    EXPECT_EQ(opacityOf(*openMenu()), 1);
    EXPECT_EQ(closedMenu(), nullptr);
}

TEST_P(FadingMenus, fadeOutFromTheOpacityThatTheyHadReached) {
    press(firstMenu);
    const QImage before = grab();
    QMenu& menu = *openMenu();
    const QPoint inside = window.mapFromGlobal(menu.pos()) + QPoint(menu.width() / 2, 4);
    menu.close();

    EXPECT_LE(Look::distance(Look::colourAt(grab(), inside), Look::colourAt(before, inside)), 12);
    EXPECT_TRUE(QTest::qWaitFor([this] { return closedMenu() == nullptr; }));
    EXPECT_EQ(menu.graphicsEffect(), nullptr);
}

TEST_P(FadingMenus, stayStillIfAnimationsAreTurnedOff) {
    const StillStyle still;
    press(firstMenu);
    QMenu& menu = *openMenu();

    EXPECT_EQ(opacityOf(menu), 1);
    menu.close();
    EXPECT_EQ(closedMenu(), nullptr);
}
