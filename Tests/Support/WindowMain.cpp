#include <gtest/gtest.h>

#include <QApplication>

#include "App/ApplicationStyle.hpp"

// Tests of windows in the application's own dress. They need no real screen, and take none that
// happens to be about unless FERNWICK_TEST_PLATFORM names its kind.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsEmpty("FERNWICK_TEST_PLATFORM")
                                   ? "offscreen"
                                   : qgetenv("FERNWICK_TEST_PLATFORM"));
    const QApplication application(argc, argv);
    applyGardenStyle();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
