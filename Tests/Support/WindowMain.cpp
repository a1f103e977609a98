#include <gtest/gtest.h>

#include <QApplication>

#include "App/ApplicationStyle.hpp"
#include "Support/OffscreenScreens.hpp"

// For tests of windows in the application's style. They run offscreen, even if there is a display,
// unless FERNWICK_TEST_PLATFORM names another platform plugin.
int main(int argc, char* argv[]) {
    // With room for the window's default size.
    const OffscreenScreens screens({{960, 880}});
    if (!qEnvironmentVariableIsEmpty("FERNWICK_TEST_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", qgetenv("FERNWICK_TEST_PLATFORM"));
    }
    const QApplication application(argc, argv);
    applyGardenStyle();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
