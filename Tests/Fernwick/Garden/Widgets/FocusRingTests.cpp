#include <gtest/gtest.h>

#include "Garden/Widgets/FocusRing.hpp"

TEST(FocusRing, showsForEveryWayOfTheKeyboard) {
    for (const Qt::FocusReason reason :
         {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason}) {
        Garden::FocusRing ring;
        ring.focusIn(reason);
        EXPECT_TRUE(ring.visible());
    }
}

TEST(FocusRing, staysAwayForMouseAndCode) {
    for (const Qt::FocusReason reason : {Qt::MouseFocusReason, Qt::OtherFocusReason}) {
        Garden::FocusRing ring;
        ring.focusIn(reason);
        EXPECT_FALSE(ring.visible());
    }
}

TEST(FocusRing, comesBackWithTheWindow) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::TabFocusReason);

    ring.focusOut(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());

    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_TRUE(ring.visible());
}

TEST(FocusRing, doesNotAppearWithTheWindowIfItWasNotThere) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::MouseFocusReason);
    ring.focusOut(Qt::ActiveWindowFocusReason);
    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());
}

TEST(FocusRing, forgetsOnceTheFocusHasMovedOn) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::TabFocusReason);
    ring.focusOut(Qt::TabFocusReason);
    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());
}
