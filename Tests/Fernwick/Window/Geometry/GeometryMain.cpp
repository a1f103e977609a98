#include <gtest/gtest.h>

#include <QApplication>

#include "App/ApplicationStyle.hpp"
#include "Fernwick/Window/Geometry/WindowSizes.hpp"
#include "Support/OffscreenScreens.hpp"

// Offscreen, with a screen of each size. The window covers them one after the other.
int main(int argc, char* argv[]) {
    const OffscreenScreens screens(windowSizes());
    const QApplication application(argc, argv);
    applyGardenStyle();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
