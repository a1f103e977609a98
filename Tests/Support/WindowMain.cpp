#include <gtest/gtest.h>

#include <QApplication>

#include "App/ApplicationStyle.hpp"

// For tests of windows in the application's style. They run offscreen, even if there is a display,
// unless FERNWICK_TEST_PLATFORM names another platform plugin.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsEmpty("FERNWICK_TEST_PLATFORM")
                                   ? "offscreen"
                                   : qgetenv("FERNWICK_TEST_PLATFORM"));
    const QApplication application(argc, argv);
    applyGardenStyle();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
