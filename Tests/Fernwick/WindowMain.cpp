#include <gtest/gtest.h>

#include <QApplication>

#include "MainWindow/ApplicationStyle.hpp"

// Tests of windows that need no real screen, in the application's own dress.
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    applyGardenStyle();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
