#include <gtest/gtest.h>

#include "Garden/Widgets/FocusRing.hpp"

TEST(FocusRing, isVisibleForKeyboardFocus) {
    for (const Qt::FocusReason reason :
         {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::ShortcutFocusReason}) {
        Garden::FocusRing ring;
        ring.focusIn(reason);
        EXPECT_TRUE(ring.visible());
    }
}

TEST(FocusRing, isHiddenForMouseAndProgrammaticFocus) {
    for (const Qt::FocusReason reason : {Qt::MouseFocusReason, Qt::OtherFocusReason}) {
        Garden::FocusRing ring;
        ring.focusIn(reason);
        EXPECT_FALSE(ring.visible());
    }
}

TEST(FocusRing, reappearsWhenTheWindowIsActivatedAgain) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::TabFocusReason);

    ring.focusOut(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());

    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_TRUE(ring.visible());
}

TEST(FocusRing, staysHiddenOnActivationIfItWasHiddenBefore) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::MouseFocusReason);
    ring.focusOut(Qt::ActiveWindowFocusReason);
    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());
}

TEST(FocusRing, staysHiddenOnActivationAfterTheFocusMovedAway) {
    Garden::FocusRing ring;
    ring.focusIn(Qt::TabFocusReason);
    ring.focusOut(Qt::TabFocusReason);
    ring.focusIn(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(ring.visible());
}
